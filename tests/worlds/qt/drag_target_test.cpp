/// What is dragged over windows and dropped there.
#include "values/runtime_error.h"
#include "values/variant.h"
#include "world_fixture.h"

#include <QDragEnterEvent>
#include <QImage>
#include <QMimeData>
#include <QUrl>

namespace lumtex::testing {

namespace {

/// Writes down what it hears of drags, and answers with `answer`.
class DropControl : public UserControl {
  public:
    std::vector<std::string> heard;
    Long answer = 1;
    DragData data;
    std::function<void()> onDrag;

    void UserControl_OLEDragOver(const DragData& Data,
                                 Long& Effect,
                                 Integer& Button,
                                 Integer& Shift,
                                 Single& X,
                                 Single& Y,
                                 Integer& State) override {
        note("over " + std::to_string(State), Effect, Button, Shift, X, Y);
        take(Data, Effect);
    }
    void UserControl_OLEDragDrop(
        const DragData& Data, Long& Effect, Integer& Button, Integer& Shift, Single& X, Single& Y) override {
        note("drop", Effect, Button, Shift, X, Y);
        dropped = Data->call(u"GetFormat", one(13)).toBoolean() ? Data->call(u"GetData").toText() : u"";
        take(Data, Effect);
    }

    static std::span<Variant> one(Long number) {
        static Variant argument;
        argument = number;
        return {&argument, 1};
    }

    String dropped;

  private:
    void note(const std::string& what, Long effect, Integer button, Integer shift, Single x, Single y) {
        heard.push_back(what + " effect " + std::to_string(effect) + " button " + std::to_string(button) +
                        " shift " + std::to_string(shift) + " at " + std::to_string(int(x)) + " " +
                        std::to_string(int(y)));
    }
    void take(const DragData& carried, Long& effect) {
        effect = answer;
        data = carried;
        if (onDrag)
            onDrag();
    }
};

class QtDrag : public QtWorldTest {
  protected:
    QtDrag() {
        target = world.createWindow(nullptr, drops);
        target->place(10, 20, 200, 100);
        target->letOLEDropMode(1);
        carried.setText(QStringLiteral("Oslo"));
        QCoreApplication::processEvents();
    }

    qt::ScreenWidget& area() { return *static_cast<qt::QtWindow&>(*target).screen(); }

    /// Returns the effect that the source sees.
    Qt::DropAction enter(QPoint at, Qt::DropActions allowed = Qt::CopyAction | Qt::MoveAction) {
        QDragEnterEvent event(at, allowed, &carried, Qt::LeftButton, Qt::ControlModifier);
        QCoreApplication::sendEvent(&area(), &event);
        return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    }
    Qt::DropAction move(QPoint at, Qt::DropActions allowed = Qt::CopyAction | Qt::MoveAction) {
        QDragMoveEvent event(at, allowed, &carried, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&area(), &event);
        return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    }
    Qt::DropAction drop(QPoint at, Qt::DropActions allowed = Qt::CopyAction | Qt::MoveAction) {
        QDropEvent event(at, allowed, &carried, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&area(), &event);
        return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    }
    void leave() {
        QDragLeaveEvent event;
        QCoreApplication::sendEvent(&area(), &event);
    }

    QMimeData carried;
    DropControl drops;
    std::unique_ptr<Window> target;
};

TEST_F(QtDrag, ADragTellsWhereItIsAndHowItMoves) {
    EXPECT_EQ(enter({30, 40}), Qt::CopyAction);
    EXPECT_EQ(move({31, 41}), Qt::CopyAction);
    leave();
    EXPECT_EQ(drops.heard,
              (std::vector<std::string>{"over 0 effect 3 button 1 shift 2 at 30 40",
                                        "over 2 effect 3 button 1 shift 0 at 31 41",
                                        "over 1 effect 0 button 1 shift 0 at 31 41"}));
}

TEST_F(QtDrag, ADropTellsTheButtonsThatWereHeld) {
    enter({30, 40});
    EXPECT_EQ(drop({32, 42}), Qt::CopyAction);
    EXPECT_EQ(drops.heard.back(), "drop effect 3 button 1 shift 0 at 32 42");
    EXPECT_EQ(drops.dropped, u"Oslo");
}

TEST_F(QtDrag, OnlyModeOneTakesDrops) {
    target->letOLEDropMode(0);
    EXPECT_EQ(enter({30, 40}), Qt::IgnoreAction);
    target->letOLEDropMode(2);
    EXPECT_EQ(enter({30, 40}), Qt::IgnoreAction);
    EXPECT_TRUE(drops.heard.empty());
}

TEST_F(QtDrag, TheAnswerIsLimitedToWhatTheSourceAllows) {
    drops.answer = 2;
    enter({30, 40}, Qt::CopyAction);
    EXPECT_EQ(move({30, 40}, Qt::CopyAction), Qt::IgnoreAction);
    EXPECT_EQ(move({30, 40}), Qt::MoveAction);
    EXPECT_EQ(drop({30, 40}, Qt::CopyAction), Qt::IgnoreAction);
}

TEST_F(QtDrag, WhatIsRefusedWhereItComesInMayBeTakenFurtherOn) {
    drops.answer = 0;
    EXPECT_EQ(enter({30, 40}), Qt::IgnoreAction);
    drops.answer = 1;
    EXPECT_EQ(move({50, 60}), Qt::CopyAction);
}

TEST_F(QtDrag, PartsOfAWindowLeaveDropsToIt) {
    NotingControl inner;
    const std::unique_ptr<Window> part = world.createWindow(target.get(), inner);
    part->place(50, 40, 20, 10);
    part->letVisible(true);
    enter({30, 40});
    move({55, 45});
    EXPECT_EQ(drops.heard.back(), "over 2 effect 3 button 1 shift 0 at 55 45");
}

TEST_F(QtDrag, TheDataIsOneObjectForTheWholeDragAndEndsWithIt) {
    enter({30, 40});
    const DragData first = drops.data;
    move({31, 41});
    EXPECT_EQ(drops.data, first);
    EXPECT_TRUE(first->call(u"GetFormat", DropControl::one(1)).toBoolean());
    leave();
    EXPECT_FALSE(first->call(u"GetFormat", DropControl::one(1)).toBoolean());
    EXPECT_THROW(first->call(u"GetData"), RuntimeError);
    enter({30, 40});
    EXPECT_NE(drops.data, first);
}

TEST_F(QtDrag, TheWindowMayEndWhileItIsTold) {
    drops.onDrag = [&] { target.reset(); };
    EXPECT_EQ(enter({30, 40}), Qt::CopyAction);
    EXPECT_EQ(target, nullptr);
    EXPECT_EQ(drops.heard.size(), 1U);
}

TEST_F(QtDrag, TheWindowMayEndInADrop) {
    enter({30, 40});
    drops.onDrag = [&] { target.reset(); };
    drop({30, 40});
    EXPECT_EQ(target, nullptr);
}

class QtCarriedData : public ::testing::Test {
  protected:
    Variant data(Long format) { return object->call(u"GetData", DropControl::one(format)); }
    bool has(Long format) { return object->call(u"GetFormat", DropControl::one(format)).toBoolean(); }

    QMimeData carried;
    ObjectRef object = qt::carriedData(carried);
};

TEST_F(QtCarriedData, AFormatIsThereOrNot) {
    EXPECT_FALSE(has(1) || has(2) || has(13) || has(15) || has(-16639));
    carried.setText(QStringLiteral("Oslo"));
    EXPECT_TRUE(has(1) && has(13));
    EXPECT_FALSE(has(2) || has(15));
    EXPECT_EQ(data(1).toText(), u"Oslo");
    EXPECT_THROW(data(2), RuntimeError);
    EXPECT_THROW(data(99), RuntimeError);
}

TEST_F(QtCarriedData, RichTextHasANegativeNumber) {
    carried.setData(QStringLiteral("text/rtf"), QByteArrayLiteral("{rtf}"));
    EXPECT_EQ(data(-16639).toText(), u"{rtf}");
    EXPECT_EQ(data(0xBF01).toText(), u"{rtf}");
}

TEST_F(QtCarriedData, AnImageIsAPicture) {
    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(Qt::red);
    carried.setImageData(image);
    const PictureRef picture = data(2).toPicture();
    EXPECT_EQ(picture->bitmap().width, 3);
    EXPECT_EQ(picture->bitmap().at(2, 1), 0xFFFF0000U);
}

TEST_F(QtCarriedData, FilesAreCountedFromOneAndOutliveTheDrag) {
    carried.setUrls({QUrl::fromLocalFile(QStringLiteral("/a b")),
                     QUrl(QStringLiteral("https://x.example")),
                     QUrl::fromLocalFile(QStringLiteral("/c"))});
    EXPECT_TRUE(has(15));
    const ObjectRef names = object->get(u"Files").toObject();
    qt::carriedData(carried);
    std::static_pointer_cast<qt::CarriedData>(object)->end();
    EXPECT_EQ(names->get(u"Count").toLong(), 2);
    EXPECT_EQ(names->call(u"Item", DropControl::one(1)).toText(), u"/a b");
    EXPECT_EQ(names->call(u"", DropControl::one(2)).toText(), u"/c");
    EXPECT_THROW(names->call(u"Item", DropControl::one(3)), RuntimeError);
    EXPECT_THROW(names->call(u"Item", DropControl::one(0)), RuntimeError);
    EXPECT_THROW(object->get(u"Files"), RuntimeError);
}

TEST_F(QtCarriedData, OtherMembersAreUnknown) {
    EXPECT_THROW(object->call(u"Clear"), RuntimeError);
    EXPECT_THROW(object->put(u"Files", Variant(Long{1})), RuntimeError);
}

} // namespace
} // namespace lumtex::testing
