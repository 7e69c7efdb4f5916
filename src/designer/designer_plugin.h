/// \file
/// The list in the widget box of Qt's form editor, and in forms that programs load.
#pragma once

#include <QObject>
#include <QPointer>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace lumtex::designer {

/// A list in a form that is being edited shows the sample of designers and takes no input, and its properties
/// are listed under the headings of the property table. In previews, and in programs that load a form, it is
/// a list like any other.
class DesignerPlugin final : public QObject, public QDesignerCustomWidgetInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetInterface)

  public:
    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override { return false; }
    QWidget* createWidget(QWidget* parent) override;
    bool isInitialized() const override { return editor_ != nullptr; }
    /// Never called where no form is edited.
    void initialize(QDesignerFormEditorInterface* editor) override { editor_ = editor; }
    QString domXml() const override;

  private:
    QPointer<QDesignerFormEditorInterface> editor_; ///< the plugin may see several, one after the other
};

} // namespace lumtex::designer
