/// \file
/// One element of the list as Qt's accessibility knows elements.
#pragma once

#include "qt/spoken_list.h"

namespace lumtex::qt {

/// Any but the list and its editor, which are widgets and answer for themselves. What is not there any more
/// is not valid and says nothing.
class SpokenElement : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    SpokenElement(std::shared_ptr<SpokenList> spoken, const accessibility::Element& element)
        : spoken_(std::move(spoken)), element_(element) {}
    SpokenElement(const SpokenElement&) = delete;
    SpokenElement& operator=(const SpokenElement&) = delete;

    const accessibility::Element& element() const { return element_; }
    /// `nothing` for an interface of something else, and for null.
    static accessibility::Element elementOf(const QAccessibleInterface* asked);

    bool isValid() const override { return spoken_->list().exists(element_); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return spoken_->window(); }
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override { return static_cast<int>(spoken_->list().childCount(element_)); }
    int indexOfChild(const QAccessibleInterface* child) const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString& text) override;
    QRect rect() const override { return spoken_->rectOf(element_); }
    QAccessible::Role role() const override;
    QAccessible::State state() const override { return spoken_->stateOf(element_); }
    void* interface_cast(QAccessible::InterfaceType type) override;

    // Actions: what a press does, and getting the focus

    QStringList actionNames() const override;
    /// In the words of the list: "Sort", "Uncheck".
    QString localizedActionName(const QString& name) const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& name) const override;

  protected:
    ~SpokenElement() override = default;

    SpokenList& spoken() const { return *spoken_; }

  private:
    /// The name of what `act` does; empty for nothing.
    QString mainAction() const;

    std::shared_ptr<SpokenList> spoken_;
    accessibility::Element element_;
};

/// For the cache of Qt, which owns it.
QAccessibleInterface* makeSpokenElement(std::shared_ptr<SpokenList> spoken,
                                        const accessibility::Element& element);

/// A text of an element as Qt asks for texts; empty for the kinds that the list has none of.
QString textOf(const accessibility::AccessibleList& list,
               const accessibility::Element& element,
               QAccessible::Text kind);

} // namespace lumtex::qt
