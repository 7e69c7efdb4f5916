/// What an element of UI Automation is, where it lies, and what lies around it.
#include "provided_list.h"

#include <future>

namespace lumtex::testing {
namespace {

using namespace accessibility;

class ProvidedElements : public ProvidedList {};

constexpr std::pair<NavigateDirection, Direction> ways[] = {
    {NavigateDirection_Parent, Direction::parent},
    {NavigateDirection_NextSibling, Direction::next},
    {NavigateDirection_PreviousSibling, Direction::previous},
    {NavigateDirection_FirstChild, Direction::firstChild},
    {NavigateDirection_LastChild, Direction::lastChild},
};

TEST_F(ProvidedElements, EveryWayLeadsWhereThePortableTreeLeads) {
    addRows();
    int steps = 0;
    for (const Element& element : everything())
        for (const auto& [way, direction] : ways) {
            Fragment found;
            ASSERT_EQ(fragment(element)->Navigate(way, found.out()), S_OK) << named(element);
            const Element expected = spoken->list.navigate(element, direction);
            EXPECT_EQ(named(elementOf(found.get())), named(expected)) << named(element) << " way " << way;
            steps += found ? 1 : 0;
        }
    EXPECT_GT(steps, 300);
    Fragment found;
    EXPECT_EQ(fragment(theList)->Navigate(static_cast<NavigateDirection>(9), found.out()), E_INVALIDARG);
}

TEST_F(ProvidedElements, APlaceIsThePortableOneOnTheScreen) {
    addRows();
    POINT corner{};
    ClientToScreen(spoken->handle, &corner);
    int shown = 0;
    for (const Element& element : everything()) {
        UiaRect rect{-1, -1, -1, -1};
        ASSERT_EQ(fragment(element)->get_BoundingRectangle(&rect), S_OK);
        const auto place = spoken->list.place(element);
        EXPECT_EQ(rect.left, place ? corner.x + place->Left : 0) << named(element);
        EXPECT_EQ(rect.top, place ? corner.y + place->Top : 0) << named(element);
        EXPECT_EQ(rect.width, place ? place->Right - place->Left : 0) << named(element);
        EXPECT_EQ(rect.height, place ? place->Bottom - place->Top : 0) << named(element);
        shown += place ? 1 : 0;
    }
    EXPECT_GT(shown, 20);
    EXPECT_NE(corner.x, 0) << "or the window's place makes no difference";
}

TEST_F(ProvidedElements, APointLeadsToTheInnermostElement) {
    addRows();
    const auto root = provider(theList).as<IRawElementProviderFragmentRoot>();
    POINT corner{};
    ClientToScreen(spoken->handle, &corner);
    for (const Element& element : everything()) {
        const auto place = spoken->list.place(element);
        if (!place)
            continue;
        const Long x = (place->Left + place->Right) / 2;
        const Long y = (place->Top + place->Bottom) / 2;
        Fragment found;
        ASSERT_EQ(root->ElementProviderFromPoint(corner.x + x + 0.9, corner.y + y + 0.9, found.out()), S_OK);
        EXPECT_EQ(named(elementOf(found.get())), named(spoken->list.at(x, y)));
    }
    Fragment outside;
    EXPECT_EQ(root->ElementProviderFromPoint(corner.x - 1.0, corner.y + 5.0, outside.out()), S_OK);
    EXPECT_FALSE(outside);
    EXPECT_EQ(root->ElementProviderFromPoint(1e300, 0, outside.out()), DISP_E_OVERFLOW);
}

TEST_F(ProvidedElements, NoTwoHaveTheSameIdentifier) {
    addRows();
    std::vector<std::array<int, 5>> seen;
    for (const Element& element : everything()) {
        const auto id = win32::uiaRuntimeId(element);
        EXPECT_EQ(std::count(seen.begin(), seen.end(), id), 0) << named(element);
        seen.push_back(id);
        const Element back = elementOf(fragment(element).get());
        EXPECT_EQ(named(back), named(element));
    }
    SAFEARRAY* ofWindow = nullptr;
    EXPECT_EQ(fragment(theList)->GetRuntimeId(&ofWindow), S_OK);
    EXPECT_EQ(ofWindow, nullptr);
}

TEST_F(ProvidedElements, TheListIsTheRootOfAll) {
    for (const Element& element : everything()) {
        win32::ComRef<IRawElementProviderFragmentRoot> root;
        ASSERT_EQ(fragment(element)->get_FragmentRoot(root.out()), S_OK);
        EXPECT_EQ(named(elementOf(root.as<IRawElementProviderFragment>().get())), "list");
        EXPECT_EQ(static_cast<bool>(provider(element).as<IRawElementProviderFragmentRoot>()),
                  element == theList);
        SAFEARRAY* others = nullptr;
        EXPECT_EQ(fragment(element)->GetEmbeddedFragmentRoots(&others), S_OK);
        EXPECT_EQ(others, nullptr);
        ProviderOptions options{};
        EXPECT_EQ(provider(element)->get_ProviderOptions(&options), S_OK);
        EXPECT_EQ(options, ProviderOptions_ServerSideProvider | ProviderOptions_UseComThreading);
    }
}

TEST_F(ProvidedElements, WhatHasAWindowOfItsOwnNamesIt) {
    addRows();
    list->SetEdit(1, 1);
    const auto hostsOf = [&](const Element& element) {
        uia.hosts.clear();
        Simple found;
        EXPECT_EQ(provider(element)->get_HostRawElementProvider(found.out()), S_OK);
        return uia.hosts;
    };
    EXPECT_EQ(hostsOf(theList), std::vector{spoken->handle});
    EXPECT_TRUE(hostsOf(rowElement(1)).empty());
    EXPECT_TRUE(hostsOf(headerElement(1)).empty());
    std::vector<HWND> windows;
    for (const Element& element : everything())
        for (const HWND window : hostsOf(element)) {
            windows.push_back(window);
            EXPECT_TRUE(window == spoken->handle || IsChild(spoken->handle, window) != FALSE)
                << named(element);
        }
    // The list, a bar of four parts, and the editor.
    EXPECT_EQ(windows.size(), 6U);
    std::sort(windows.begin(), windows.end());
    EXPECT_EQ(std::unique(windows.begin(), windows.end()), windows.end());
}

TEST_F(ProvidedElements, TheFocusIsWhereTheKeysGo) {
    const auto root = provider(theList).as<IRawElementProviderFragmentRoot>();
    const auto focus = [&] {
        Fragment found;
        EXPECT_EQ(root->GetFocus(found.out()), S_OK);
        return named(elementOf(found.get()));
    };
    list->letRowIndex(2);
    SetFocus(program->get());
    EXPECT_EQ(focus(), "nothing");
    EXPECT_FALSE(property(rowElement(2), UIA_HasKeyboardFocusPropertyId).toBoolean());
    EXPECT_EQ(fragment(rowElement(3))->SetFocus(), S_OK);
    EXPECT_EQ(focus(), "row 3");
    EXPECT_TRUE(property(rowElement(3), UIA_HasKeyboardFocusPropertyId).toBoolean());
    EXPECT_EQ(fragment(headerElement(1))->SetFocus(), win32::uiaInvalidOperation);
    list->SetEdit(1, 1);
    EXPECT_EQ(focus(), "editor");
}

TEST_F(ProvidedElements, PropertiesAreWhatThePortableTreeSays) {
    addRows();
    list->Sort(1, cAscending);
    list->letRowEnabled(2, false);
    list->letItemChecked(1, 2, true);
    settle();
    for (const Element& element : everything()) {
        const States states = spoken->list.states(element);
        EXPECT_EQ(text(element, UIA_NamePropertyId), toUtf8(spoken->list.name(element)));
        EXPECT_EQ(property(element, UIA_IsEnabledPropertyId).toBoolean(), (states & unavailable) == 0);
        EXPECT_EQ(property(element, UIA_IsOffscreenPropertyId).toBoolean(),
                  (states & (offscreen | invisible)) != 0)
            << named(element);
        EXPECT_EQ(property(element, UIA_IsKeyboardFocusablePropertyId).toBoolean(),
                  (states & focusable) != 0);
        EXPECT_TRUE(property(element, UIA_IsControlElementPropertyId).toBoolean());
        EXPECT_TRUE(property(element, UIA_RuntimeIdPropertyId).isEmpty());
    }
    EXPECT_EQ(text(rowElement(1), UIA_FullDescriptionPropertyId), "Country: Portugal");
    EXPECT_EQ(text(headerElement(1), UIA_ItemStatusPropertyId), "sorted, ascending");
    EXPECT_TRUE(property(headerElement(2), UIA_ItemStatusPropertyId).isEmpty());
    EXPECT_EQ(property(rowElement(2), UIA_PositionInSetPropertyId).toLong(), 2);
    EXPECT_EQ(property(rowElement(2), UIA_SizeOfSetPropertyId).toLong(), 33);
    EXPECT_EQ(property(verticalBar, UIA_OrientationPropertyId).toLong(), 2);
    EXPECT_EQ(text(cellElement(1, 1), UIA_LocalizedControlTypePropertyId), "cell");
    EXPECT_EQ(property(checkBoxElement(1, 2), UIA_ToggleToggleStatePropertyId).toLong(), 1);
    EXPECT_TRUE(property(rowElement(1), UIA_IsContentElementPropertyId).toBoolean());
    EXPECT_FALSE(property(headerElement(1), UIA_IsContentElementPropertyId).toBoolean());
}

TEST_F(ProvidedElements, EachKindHasItsTypeOfControl) {
    addRows();
    list->SetEdit(1, 1);
    const auto type = [&](const Element& element) {
        return static_cast<win32::UiaControl>(property(element, UIA_ControlTypePropertyId).toLong());
    };
    using enum win32::UiaControl;
    EXPECT_EQ(type(theList), dataGrid);
    EXPECT_EQ(type(rowElement(1)), dataItem);
    EXPECT_EQ(type(cellElement(1, 1)), custom);
    EXPECT_EQ(type(checkBoxElement(1, 2)), checkBox);
    EXPECT_EQ(type(theHeaders), header);
    EXPECT_EQ(type(headerElement(2)), headerItem);
    EXPECT_EQ(type(verticalBar), scrollBar);
    EXPECT_EQ(type({Kind::lowArrow}), button);
    EXPECT_EQ(type({Kind::thumb}), thumb);
    EXPECT_EQ(type(theEditor), edit);
}

TEST_F(ProvidedElements, WhatIsThereNoMoreIsNotAvailable) {
    const Simple third = provider(rowElement(3));
    const Simple root = provider(theList);
    list->RowsRemove(3);
    win32::OwnedVARIANT value;
    EXPECT_EQ(third->GetPropertyValue(UIA_NamePropertyId, value.out()), win32::uiaNotAvailable);
    Fragment found;
    EXPECT_EQ(third.as<IRawElementProviderFragment>()->Navigate(NavigateDirection_Parent, found.out()),
              win32::uiaNotAvailable);
    EXPECT_EQ(root->GetPropertyValue(UIA_NamePropertyId, value.out()), S_OK);
    list.reset();
    EXPECT_EQ(root->GetPropertyValue(UIA_NamePropertyId, value.out()), win32::uiaNotAvailable);
    win32::ComRef<IUnknown> face;
    EXPECT_EQ(root->GetPatternProvider(UIA_GridPatternId, face.out()), win32::uiaNotAvailable);
    EXPECT_FALSE(face);
    UiaRect rect{1, 1, 1, 1};
    EXPECT_EQ(root.as<IRawElementProviderFragment>()->get_BoundingRectangle(&rect), win32::uiaNotAvailable);
    EXPECT_EQ(rect.width, 0);
    EXPECT_EQ(root.as<IRawElementProviderFragmentRoot>()->GetFocus(found.out()), win32::uiaNotAvailable);
    Simple ofWindow;
    EXPECT_EQ(root->get_HostRawElementProvider(ofWindow.out()), win32::uiaNotAvailable);
}

TEST_F(ProvidedElements, AnotherThreadIsRefused) {
    const Simple root = provider(theList);
    const HRESULT result = std::async(std::launch::async, [&] {
                               win32::OwnedVARIANT value;
                               return root->GetPropertyValue(UIA_NamePropertyId, value.out());
                           }).get();
    EXPECT_EQ(result, RPC_E_WRONG_THREAD);
}

TEST_F(ProvidedElements, NullPlacesAreRefused) {
    const auto root = provider(theList);
    EXPECT_EQ(root->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
    EXPECT_EQ(root->get_ProviderOptions(nullptr), E_POINTER);
    EXPECT_EQ(root->GetPatternProvider(UIA_GridPatternId, nullptr), E_POINTER);
    EXPECT_EQ(root->GetPropertyValue(UIA_NamePropertyId, nullptr), E_POINTER);
    EXPECT_EQ(root->get_HostRawElementProvider(nullptr), E_POINTER);
    const auto part = fragment(theList);
    EXPECT_EQ(part->Navigate(NavigateDirection_FirstChild, nullptr), E_POINTER);
    EXPECT_EQ(part->GetRuntimeId(nullptr), E_POINTER);
    EXPECT_EQ(part->get_BoundingRectangle(nullptr), E_POINTER);
    EXPECT_EQ(part->get_FragmentRoot(nullptr), E_POINTER);
    EXPECT_EQ(root.as<IRawElementProviderFragmentRoot>()->ElementProviderFromPoint(0, 0, nullptr), E_POINTER);
}

} // namespace
} // namespace lumtex::testing
