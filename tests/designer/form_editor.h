/// \file
/// Qt's form editor without its windows, with a form that is being edited.
#pragma once

#include "qt/lumtex_list_view.h"

#include <QCoreApplication>
#include <QObject>
#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>

namespace lumtex::testing {

class FormEditor {
  public:
    /// A form with a list called "list"; `properties` are elements of it. Files that they name lie in
    /// `folder`.
    FormEditor(const QString& folder, const QString& properties) {
        QCoreApplication::addLibraryPath(QStringLiteral(LUMTEX_PLUGIN_FOLDER));
        QDesignerComponents::initializeResources();
        core_ = QDesignerComponents::createFormEditor(&owner_);
        QDesignerComponents::initializePlugins(core_);
        new QDesignerIntegration(core_, &owner_);
        form_ = core_->formWindowManager()->createFormWindow();
        form_->setFileName(folder + QStringLiteral("/form.ui"));
        form_->setContents(QStringLiteral(R"(<ui version="4.0"><class>Form</class>
            <widget class="QWidget" name="Form"><widget class="LumtexListView" name="list">%1</widget></widget>
            </ui>)")
                               .arg(properties));
        core_->formWindowManager()->setActiveFormWindow(form_);
    }

    LumtexListView* list() const {
        return form_->mainContainer()->findChild<LumtexListView*>(QStringLiteral("list"));
    }
    QDesignerPropertySheetExtension& sheet() const {
        return *qt_extension<QDesignerPropertySheetExtension*>(core_->extensionManager(), list());
    }
    QDesignerFormWindowManagerInterface& forms() const { return *core_->formWindowManager(); }
    QString contents() const { return form_->contents(); }

  private:
    QObject owner_;
    QDesignerFormEditorInterface* core_;
    QDesignerFormWindowInterface* form_;
};

} // namespace lumtex::testing
