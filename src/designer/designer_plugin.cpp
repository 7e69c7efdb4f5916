#include "designer/designer_plugin.h"

#include "qt/lumtex_list_view.h"
#include "words/phrase.h"
#include "worlds/qt/users_language.h"

#include <QIcon>
#include <QPixmap>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

namespace lumtex::designer {

namespace {

struct PropertyGroup {
    const char* property;
    words::Phrase heading;
};

constexpr PropertyGroup propertyGroups[] = {
#include "designer/property_groups.inc"
};

QString inUsersLanguage(words::Phrase phrase) {
    const StringView text = phrase.in(qt::usersLanguage());
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

/// The widget's own sheet, under other headings.
void groupProperties(const QDesignerFormEditorInterface& editor, QWidget& list) {
    auto* sheet = qt_extension<QDesignerPropertySheetExtension*>(editor.extensionManager(), &list);
    if (sheet == nullptr)
        return;
    for (const PropertyGroup& group : propertyGroups)
        sheet->setPropertyGroup(sheet->indexOf(QString::fromLatin1(group.property)),
                                inUsersLanguage(group.heading));
}

} // namespace

QString DesignerPlugin::name() const {
    return QStringLiteral("LumtexListView");
}

QString DesignerPlugin::group() const {
    return QStringLiteral("Item Widgets (Item-Based)");
}

QString DesignerPlugin::toolTip() const {
    return inUsersLanguage(words::phrase(u"designer", u"tip"));
}

QString DesignerPlugin::whatsThis() const {
    return inUsersLanguage(words::phrase(u"designer", u"about"));
}

QString DesignerPlugin::includeFile() const {
    return QStringLiteral("qt/lumtex_list_view.h");
}

QIcon DesignerPlugin::icon() const {
    QPixmap picture(QStringLiteral(":/lumtex/designer/toolbox.bmp"));
    picture.setMask(picture.createMaskFromColor(picture.toImage().pixelColor(0, 0)));
    return picture;
}

QWidget* DesignerPlugin::createWidget(QWidget* parent) {
    auto* list = new LumtexListView(parent);
    if (editor_ != nullptr && QDesignerFormWindowInterface::findFormWindow(list) != nullptr) {
        list->setDesignView(true);
        groupProperties(*editor_, *list);
    }
    return list;
}

QString DesignerPlugin::domXml() const {
    return QStringLiteral(R"(<ui language="c++" displayname="List View">
 <widget class="LumtexListView" name="listView">
  <property name="geometry">
   <rect>
    <x>0</x>
    <y>0</y>
    <width>300</width>
    <height>200</height>
   </rect>
  </property>
 </widget>
</ui>)");
}

} // namespace lumtex::designer
