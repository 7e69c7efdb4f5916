/// \file
/// A bar of the list, with its place as a value.
#pragma once

#include "qt/spoken_element.h"

namespace lumtex::qt {

class SpokenBar final : public SpokenElement, public QAccessibleValueInterface {
  public:
    using SpokenElement::SpokenElement;

    void* interface_cast(QAccessible::InterfaceType type) override;

    QVariant currentValue() const override;
    /// Drags the thumb.
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override { return 1; }

  private:
    accessibility::AccessibleList::Range range() const;
};

} // namespace lumtex::qt
