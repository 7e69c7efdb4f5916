/// \file
/// A list in a window of the system, as UI Automation gets it.
#pragma once

#include "noted_uia.h"
#include "worlds/win32/counted_object.h"
#include "worlds/win32/win32_list.h"

namespace lumtex::testing {

/// What stands for the control around the list.
class StandIn final : public win32::CountedObject<IUnknown> {};

/// Three cities in two columns that sort, with check boxes in the cells of the second one.
class ProvidedList : public Win32List {
  protected:
    using Element = accessibility::Element;
    using Simple = win32::ComRef<IRawElementProviderSimple>;
    using Fragment = win32::ComRef<IRawElementProviderFragment>;

    void SetUp() override {
        Win32List::SetUp();
        for (const char16_t* column : {u"City", u"Country"})
            list->ColumnsAdd(column, nullptr, nullptr, nullptr, cColumnLeft, 1200, true);
        list->letStyle(cCheckBoxes);
        list->letColumnCheckBoxes(Long{2}, true);
        for (const char16_t* row : {u"Lisbon,Portugal", u"Oslo,Norway", u"Quito,Ecuador"})
            list->RowsAdd(Long{-1}, u",", row);
        settle();
        spoken = std::make_shared<win32::SpokenList>(*list, *control.get());
        spoken->handle = win32::toHWND(listWindow());
        spoken->uia = NotedUia::find();
    }
    void settle() {
        list->CheckScroll();
        list->Redraw();
        runtime.DoEvents();
        events.log.clear();
    }
    /// Enough of them for a bar.
    void addRows() {
        for (int row = 0; row < 30; ++row)
            list->RowsAdd(Long{-1}, u",", u"Porto,Portugal");
        settle();
    }

    Simple provider(const Element& element) const { return win32::uiaProvider(spoken, element); }
    Fragment fragment(const Element& element) const {
        return provider(element).as<IRawElementProviderFragment>();
    }
    /// The element under the interface of a pattern that its kind has.
    template <class Pattern>
    win32::ComRef<Pattern> pattern(const Element& element, PATTERNID number) {
        win32::ComRef<IUnknown> found;
        EXPECT_EQ(provider(element)->GetPatternProvider(number, found.out()), S_OK);
        void* face = nullptr;
        EXPECT_TRUE(found && found->QueryInterface(Pattern::interfaceId, &face) == S_OK) << named(element);
        return win32::ComRef<Pattern>::adopting(static_cast<Pattern*>(face));
    }
    Variant property(const Element& element, PROPERTYID number) {
        win32::OwnedVARIANT value;
        EXPECT_EQ(provider(element)->GetPropertyValue(number, value.out()), S_OK) << named(element);
        return win32::fromVARIANT(value.get());
    }
    std::string text(const Element& element, PROPERTYID number) {
        return toUtf8(property(element, number).toText());
    }
    /// "row 1, row 3": what an array of providers is of. Ends the array.
    static std::string namesIn(SAFEARRAY* array) {
        std::string names;
        LONG last = -1;
        if (array != nullptr)
            SafeArrayGetUBound(array, 1, &last);
        for (LONG i = 0; i <= last; ++i) {
            win32::ComRef<IUnknown> each;
            SafeArrayGetElement(array, &i, each.out());
            names += (i > 0 ? ", " : "") + named(elementOf(each.as<IRawElementProviderSimple>().get()));
        }
        SafeArrayDestroy(array);
        return names;
    }
    /// Every element of the list, the list first.
    std::vector<Element> everything() {
        std::vector<Element> all{accessibility::theList};
        for (std::size_t i = 0; i < all.size(); ++i) {
            const Element above = all[i];
            for (Long number = 1; number <= spoken->list.childCount(above); ++number)
                all.push_back(spoken->list.child(above, number));
        }
        return all;
    }

    NotedUia uia;
    win32::ComRef<IUnknown> control = win32::ComRef<IUnknown>::adopting(new StandIn);
    std::shared_ptr<win32::SpokenList> spoken;
};

} // namespace lumtex::testing
