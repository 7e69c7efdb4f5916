#include "program_user.h"

#include "folders.h"
#include "picture_check.h"
#include "worlds/qt/qt_picture.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QMessageBox>
#include <QStyleFactory>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <cstdlib>
#include <utility>

#include <gtest/gtest.h>

namespace lumtex::testing {

namespace {

/// What the windows look like and how they write dates is the same on every machine.
class SameEverywhere final : public ::testing::Environment {
  public:
    void SetUp() override {
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        setenv("QT_SCALE_FACTOR", "1", 1);
        setenv("QT_STYLE_OVERRIDE", "fusion", 1);
        setenv("FONTCONFIG_FILE", (testFolder() + "/fonts/fonts.conf").c_str(), 1);
        setenv("LC_ALL", "C", 1);
        setenv("TZ", "UTC", 1);
    }
};

const auto* const sameEverywhere = ::testing::AddGlobalTestEnvironment(new SameEverywhere);

constexpr int restMilliseconds = 60; // longer than the list takes to look where the mouse is
constexpr int headerPixels = 22;
constexpr int boxMiddle = 12;
constexpr int twipsPerPixel = 15;

struct Visit {
    std::function<void(QWidget&)> use;
    bool happened = false;
};

Visit* expected = nullptr; // of the program that runs

QWidget* shownWindow() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto shown =
        std::find_if(windows.begin(), windows.end(), [](QWidget* window) { return window->isVisible(); });
    return shown == windows.end() ? nullptr : *shown;
}

/// What the list reports fails the test, instead of waiting for somebody who reads it.
void closeBox() {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        ADD_FAILURE() << box->text().toStdString();
        box->close();
    }
}

void visit() {
    if (std::exchange(expected->happened, true))
        return;
    QWidget* window = shownWindow();
    EXPECT_NE(window, nullptr);
    if (window != nullptr) {
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window) && QTest::qWaitForWindowActive(window));
        expected->use(*window);
    }
    QApplication::closeAllWindows();
    QCoreApplication::exit();
}

/// Each application calls this as it begins. A list lets events through in the middle of what the program
/// does; whoever uses it waits until it would wait itself.
void awaitEvents() {
    auto* application = QCoreApplication::instance();
    auto* boxes = new QTimer(application);
    QObject::connect(boxes, &QTimer::timeout, closeBox);
    boxes->start(restMilliseconds);
    QTimer::singleShot(0, application, [application] {
        QObject::connect(QAbstractEventDispatcher::instance(),
                         &QAbstractEventDispatcher::aboutToBlock,
                         application,
                         visit);
    });
}

Q_COREAPP_STARTUP_FUNCTION(awaitEvents)

/// The mouse goes to a point of the list first, and rests. The point as one of the window.
QPoint goTo(const LumtexListView& list, QPoint place) {
    const QPoint inWindow = list.mapTo(list.window(), place);
    QTest::mouseMove(list.window()->windowHandle(), inWindow - QPoint(1, 1));
    QTest::mouseMove(list.window()->windowHandle(), inWindow);
    QTest::qWait(restMilliseconds);
    return inWindow;
}

void click(const LumtexListView& list, QPoint place) {
    QTest::mouseClick(list.window()->windowHandle(), Qt::LeftButton, {}, goTo(list, place));
    QTest::qWait(restMilliseconds);
}

QPoint middleOf(const LumtexListView& list, int row, int column) {
    const double left = (list.ColumnLeft(column) + list.ColumnWidth(column) / 2) / twipsPerPixel;
    const double rowPixels = list.RowHeight() / twipsPerPixel;
    return {static_cast<int>(left),
            headerPixels + static_cast<int>((row - 1 - list.TopIndex() + 0.5) * rowPixels)};
}

} // namespace

int useProgram(ProgramMain program,
               const std::vector<std::string>& words,
               const std::function<void(QWidget& window)>& use) {
    std::vector<std::string> kept{"program"};
    kept.insert(kept.end(), words.begin(), words.end());
    std::vector<char*> line;
    for (std::string& word : kept)
        line.push_back(word.data());
    line.push_back(nullptr);
    Visit planned{use};
    expected = &planned;
    const int status = program(static_cast<int>(kept.size()), line.data());
    expected = nullptr;
    return planned.happened || status != 0 ? status : -1;
}

std::string rowsOf(const LumtexListView& list) {
    std::string text;
    for (int row = 1; row <= list.RowsCount(); ++row)
        for (int column = 1; column <= list.ColumnsCount(); ++column)
            text += list.ItemText(row, column).toStdString() + (column < list.ColumnsCount() ? " | " : "\n");
    return text;
}

void clickCell(const LumtexListView& list, int row, int column) {
    click(list, middleOf(list, row, column));
}

void clickBox(const LumtexListView& list, int row) {
    click(list, {boxMiddle, middleOf(list, row, 1).y()});
}

void doubleClickCell(const LumtexListView& list, int row, int column) {
    QTest::mouseDClick(
        list.window()->windowHandle(), Qt::LeftButton, {}, goTo(list, middleOf(list, row, column)));
    QTest::qWait(restMilliseconds);
}

void clickHeader(const LumtexListView& list, int column) {
    click(list, {middleOf(list, 1, column).x(), headerPixels / 2});
}

void pressKey(LumtexListView& list, Qt::Key key) {
    list.setFocus();
    QTest::keyClick(QApplication::focusWidget(), key);
    QCoreApplication::processEvents();
}

void expectPicture(QWidget& window, const std::string& name) {
    // The mouse goes where it lights up nothing.
    QTest::mouseMove(window.windowHandle(), QPoint(window.width() - 30, window.height() - 30));
    QTest::qWait(restMilliseconds);
    PictureFolders folders = usualPictureFolders();
    folders.references = std::filesystem::path(sourceFolder()) / "docs" / "images" / "examples-programs";
    EXPECT_TRUE(showsPicture(name, qt::bitmapOf(window.grab().toImage()), folders));
}

} // namespace lumtex::testing
