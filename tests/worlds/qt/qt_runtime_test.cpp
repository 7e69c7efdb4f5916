#include "scratch_folder.h"
#include "values/picture_image.h"
#include "world_fixture.h"

#include <QMessageBox>
#include <QSettings>
#include <QTimer>

namespace lumtex::testing {

namespace {

class QtRuntimeTest : public QtWorldTest {
  protected:
    EventQueue& queue() { return world.runtime().queue(); }
    /// Runs `body` when events are let through next.
    static void post(std::function<void()> body) { QTimer::singleShot(0, qApp, std::move(body)); }
};

TEST_F(QtRuntimeTest, AYieldLetsThroughWhatWaits) {
    bool ran = false;
    QMetaObject::invokeMethod(
        qApp, [&] { ran = true; }, Qt::QueuedConnection);
    queue().DoEvents();
    EXPECT_TRUE(ran);
}

TEST_F(QtRuntimeTest, AYieldEndsThoughEventsCallForOthersForEver) {
    int count = 0;
    std::function<void()> again = [&] {
        ++count;
        post(again);
    };
    post(again);
    queue().DoEvents();
    EXPECT_GE(count, 1);
    EXPECT_LE(count, qt::QtRuntime::mostPasses * 2);
    again = [] {};
    queue().DoEvents();
}

TEST_F(QtRuntimeTest, YieldsInsideOneAnotherComeToAnEnd) {
    int depth = 0;
    int deepest = 0;
    bool ended = false;
    std::function<void()> deeper = [&] {
        deepest = std::max(deepest, ++depth);
        if (!ended) {
            QMetaObject::invokeMethod(qApp, deeper, Qt::QueuedConnection);
            queue().DoEvents();
            ended = true;
        }
        --depth;
    };
    deeper();
    EXPECT_EQ(deepest, qt::QtRuntime::deepestYield + 1);
}

TEST_F(QtRuntimeTest, ABoxWaitsForItsButton) {
    QString text;
    post([&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        text = box->text();
        box->accept();
    });
    queue().messageBox(u"a\nb", BoxStyle::critical, u"title");
    EXPECT_EQ(text, QStringLiteral("a\nb"));
}

TEST_F(QtRuntimeTest, ABoxEndsWithTheWidgetThatItLiesOver) {
    post([&] { container.reset(); });
    queue().messageBox(u"text", BoxStyle::plain, u"title");
    EXPECT_EQ(container, nullptr);
    container = std::make_unique<QWidget>();
    container->show();
}

TEST_F(QtRuntimeTest, AModalFormEndsWhenTheUserClosesIt) {
    NotingControl client;
    const std::unique_ptr<Window> form = world.createForm(client);
    form->place(20, 20, 60, 40);
    post([&] { static_cast<qt::QtWindow&>(*form).screen()->close(); });
    world.showModal(*form);
    EXPECT_FALSE(form->Visible());
}

TEST_F(QtRuntimeTest, AModalFormEndsWhenItHidesItself) {
    NotingControl client;
    const std::unique_ptr<Window> form = world.createForm(client);
    form->place(20, 20, 60, 40);
    post([&] { form->letVisible(false); });
    world.showModal(*form);
    EXPECT_FALSE(static_cast<qt::QtWindow&>(*form).screen()->isVisible());
}

TEST_F(QtRuntimeTest, AModalFormEndsWithTheApplication) {
    NotingControl client;
    const std::unique_ptr<Window> form = world.createForm(client);
    form->place(20, 20, 60, 40);
    post([&] {
        post([] { QCoreApplication::exit(7); });
        world.showModal(*form);
    });
    EXPECT_EQ(QCoreApplication::exec(), 7);
    EXPECT_FALSE(form->Visible());
}

TEST_F(QtRuntimeTest, SettingsStandInGroupsByTheirKeys) {
    const ScratchFolder folder;
    QSettings::setPath(
        QSettings::NativeFormat, QSettings::UserScope, QString::fromStdString(folder.path.string()));
    {
        QSettings settings(QStringLiteral("Lumtex"), QStringLiteral("LumtexListView"));
        settings.setValue(QStringLiteral("Errors/Show/Mode"), 3);
    }
    EXPECT_EQ(world.runtime().settings().text(u"Errors\\Show", u"Mode"), String(u"3"));
    EXPECT_EQ(world.runtime().settings().text(u"Errors\\Show", u"Other"), std::nullopt);
}

TEST_F(QtRuntimeTest, PicturesComeBackFromTheirImages) {
    Bitmap pixels(3, 2, 0xFF102030U);
    pixels.at(2, 1) = 0;
    for (const PictureKind kind : {PictureKind::icon, PictureKind::bitmap}) {
        pixels.at(2, 1) = kind == PictureKind::icon ? 0U : 0xFFFFFFFFU;
        const BitmapPicture picture(pixels, kind);
        PictureImages& pictures = world.runtime().pictures();
        const PictureRef back = pictures.pictureOfImage(pictures.imageOfPicture(picture));
        EXPECT_EQ(back->bitmap(), pixels);
        EXPECT_EQ(back->kind(), kind);
    }
}

} // namespace
} // namespace lumtex::testing
