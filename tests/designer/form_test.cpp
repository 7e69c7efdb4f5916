/// Forms with a list: as they are edited, saved, and loaded by programs.
#include "form_editor.h"
#include "widget/changed_settings.h"

#include <QApplication>
#include <QBuffer>
#include <QTemporaryDir>
#include <QtUiTools/QUiLoader>
#include <map>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

class Form : public ::testing::Test {
  protected:
    Form() {
        QPixmap picture(5, 4);
        picture.fill(Qt::red);
        picture.save(folder.filePath(QStringLiteral("picture.png")));
    }

    std::unique_ptr<QWidget> loaded(const QString& contents) {
        QUiLoader loader;
        loader.clearPluginPaths();
        loader.addPluginPath(QStringLiteral(LUMTEX_PLUGIN_FOLDER "/designer"));
        loader.setWorkingDirectory(folder.path());
        QByteArray bytes = contents.toUtf8();
        QBuffer buffer(&bytes);
        return std::unique_ptr<QWidget>(loader.load(&buffer));
    }

    QTemporaryDir folder;
    FormEditor editor{folder.path(), QStringLiteral(R"(
        <property name="Skin"><pixmap>picture.png</pixmap></property>
        <property name="BackgroundPicture"><pixmap>picture.png</pixmap></property>)")};
};

TEST_F(Form, ShowsTheSampleOfDesignersWhileItIsEdited) {
    ASSERT_NE(editor.list(), nullptr);
    EXPECT_TRUE(editor.list()->designView());
}

TEST_F(Form, ShowsAListLikeAnyOtherInItsPreview) {
    editor.forms().showPreview();
    int previews = 0;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (const auto* list = window->findChild<LumtexListView*>(QStringLiteral("list"))) {
            EXPECT_EQ(list->designView(), list == editor.list());
            previews += list != editor.list() ? 1 : 0;
        }
    }
    EXPECT_EQ(previews, 1);
    editor.forms().closeAllPreviews();
}

TEST_F(Form, ListsEachPropertyOfTheBagUnderOneOfFiveHeadings) {
    std::map<std::string, int> counts;
    for (const std::string& name : settings()) {
        const int index = editor.sheet().indexOf(QString::fromStdString(name));
        EXPECT_TRUE(editor.sheet().isVisible(index)) << name;
        ++counts[editor.sheet().propertyGroup(index).toStdString()];
    }
    const std::map<std::string, int> wanted{
        {"Appearance", 30}, {"Behaviour", 6}, {"Columns", 14}, {"Data", 4}, {"Scroll bars", 15}};
    EXPECT_EQ(counts, wanted);
    EXPECT_EQ(editor.sheet().propertyGroup(editor.sheet().indexOf(QStringLiteral("RowHeight"))).toStdString(),
              "Appearance");
    EXPECT_EQ(
        editor.sheet().propertyGroup(editor.sheet().indexOf(QStringLiteral("AllowItemMoving"))).toStdString(),
        "Data");
}

TEST_F(Form, ListsNoPropertyThatIsNotKept) {
    const QMetaObject& meta = LumtexListView::staticMetaObject;
    int hidden = 0;
    for (int i = meta.superClass()->propertyOffset(); i < meta.propertyCount(); ++i) {
        if (meta.property(i).isStored())
            continue;
        const int index = editor.sheet().indexOf(QString::fromLatin1(meta.property(i).name()));
        EXPECT_FALSE(index >= 0 && editor.sheet().isVisible(index)) << meta.property(i).name();
        ++hidden;
    }
    EXPECT_EQ(hidden, 13);
}

TEST_F(Form, HasAllSettingsAgainOnceItWasSavedAndLoaded) {
    LumtexListView fresh;
    LumtexListView* list = editor.list();
    const QMetaObject& meta = *fresh.metaObject();
    for (const std::string& name : settings()) {
        const QMetaProperty property = meta.property(meta.indexOfProperty(name.c_str()));
        if (property.typeId() ==
            QMetaType::QPixmap) // kept by the names of their files, which the form has already
            continue;
        const QVariant other = anotherThan(property, property.read(&fresh));
        const int index = editor.sheet().indexOf(QString::fromStdString(name));
        editor.sheet().setProperty(index, property.isEnumType() ? QVariant(other.toInt()) : other);
        editor.sheet().setChanged(index, true);
    }
    const std::unique_ptr<QWidget> form = loaded(editor.contents());
    ASSERT_NE(form, nullptr);
    const auto* again = form->findChild<LumtexListView*>(QStringLiteral("list"));
    ASSERT_NE(again, nullptr);
    EXPECT_FALSE(again->designView());
    for (const std::string& name : settings()) {
        const QMetaProperty property = meta.property(meta.indexOfProperty(name.c_str()));
        EXPECT_NE(comparable(property.read(again)), comparable(property.read(&fresh))) << name;
        if (property.typeId() == QMetaType::QPixmap)
            EXPECT_EQ(comparable(property.read(again)), QVariant(QSize(5, 4))) << name;
        else
            EXPECT_EQ(comparable(property.read(again)), comparable(property.read(list))) << name;
    }
}

TEST_F(Form, KeepsOnlyWhatWasChanged) {
    const QString contents = editor.contents();
    EXPECT_TRUE(contents.contains(QStringLiteral("\"Skin\""))) << contents.toStdString();
    EXPECT_FALSE(contents.contains(QStringLiteral("\"BackColor\""))) << contents.toStdString();
}

} // namespace
} // namespace lumtex::testing
