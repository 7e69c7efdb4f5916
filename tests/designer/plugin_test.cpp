/// The plugin as the form editor's widget box and loaders of forms find it.
#include "qt/lumtex_list_view.h"

#include <QIcon>
#include <QPluginLoader>
#include <QXmlStreamReader>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

class Plugin : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_NE(custom, nullptr) << loader.errorString().toStdString(); }

    QPluginLoader loader{QStringLiteral(LUMTEX_PLUGIN_FOLDER "/designer/libLumtexListViewDesigner.so")};
    QDesignerCustomWidgetInterface* custom = qobject_cast<QDesignerCustomWidgetInterface*>(loader.instance());
};

TEST_F(Plugin, MakesTheWidgetThatItNames) {
    QWidget form;
    QWidget* made = custom->createWidget(&form);
    EXPECT_EQ(made->parentWidget(), &form);
    EXPECT_EQ(custom->name(), QString::fromLatin1(made->metaObject()->className()));
    ASSERT_NE(qobject_cast<LumtexListView*>(made), nullptr);
    EXPECT_FALSE(qobject_cast<LumtexListView*>(made)->designView()) << "no form is being edited";
}

TEST_F(Plugin, SaysInWordsWhatTheWidgetIs) {
    EXPECT_EQ(custom->toolTip(), QStringLiteral("A list of rows and columns"));
    EXPECT_TRUE(custom->whatsThis().startsWith(QStringLiteral("Shows rows and columns in")));
    EXPECT_EQ(custom->group(), QStringLiteral("Item Widgets (Item-Based)"));
    EXPECT_EQ(custom->includeFile(), QStringLiteral("qt/lumtex_list_view.h"));
    EXPECT_FALSE(custom->isContainer());
}

TEST_F(Plugin, HasAPictureWithTransparentEdges) {
    const QImage picture = custom->icon().pixmap(16, 16).toImage();
    ASSERT_EQ(picture.size(), QSize(16, 16));
    EXPECT_EQ(picture.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(picture.pixelColor(8, 9), QColor(49, 106, 197)) << "the selected row";
}

TEST_F(Plugin, DescribesANewListInTheFormatOfForms) {
    QXmlStreamReader reader(custom->domXml());
    QString described;
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QStringLiteral("widget"))
            described = reader.attributes().value(QStringLiteral("class")).toString();
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    EXPECT_EQ(described, custom->name());
}

} // namespace
} // namespace lumtex::testing
