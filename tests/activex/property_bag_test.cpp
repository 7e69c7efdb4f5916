/// Settings in bags that convert values, or cannot.
#include "event_sink.h"
#include "small_container.h"

namespace lumtex::testing {
namespace {

/// Gives each value as the type that it is asked for, and says `failure` where it cannot.
class ConvertingBag final : public MapBag {
  public:
    HRESULT failure = DISP_E_TYPEMISMATCH;
    HRESULT missing = E_INVALIDARG;

    HRESULT STDMETHODCALLTYPE Read(LPCOLESTR name, VARIANT* value, IErrorLog* /*log*/) override {
        const auto found = values.find(String(win32::textOf(name)));
        if (found == values.end())
            return missing;
        win32::OwnedVARIANT held = win32::toVARIANT(found->second);
        const VARTYPE wanted = V_VT(value);
        if (wanted != VT_EMPTY && FAILED(VariantChangeType(&held.get(), &held.get(), 0, wanted)))
            return failure;
        *value = held.release();
        return S_OK;
    }
};

class PropertyBagLoading : public ListFixture {
  protected:
    /// Every report costs an entry.
    std::vector<String> load(ConvertingBag& bag) {
        silence(false);
        BoxWatch boxes;
        EXPECT_EQ(control.as<IPersistPropertyBag>()->Load(&bag, nullptr), S_OK);
        silence(true);
        return std::exchange(boxes.boxes, {});
    }
};

TEST_F(PropertyBagLoading, AValueThatTheBagConvertsIsTaken) {
    ConvertingBag bag;
    bag.values = {{u"ColumnTextY", u"7"}, {u"GridLines", u"True"}};
    EXPECT_TRUE(load(bag).empty());
    EXPECT_EQ(get(L"ColumnTextY"), Variant(Long{7}));
    EXPECT_EQ(get(L"GridLines"), Variant(true));
}

TEST_F(PropertyBagLoading, AValueThatTheBagCannotConvertIsReportedAndTheRestIsLoaded) {
    for (const HRESULT failure : {DISP_E_TYPEMISMATCH, DISP_E_OVERFLOW, DISP_E_BADVARTYPE, E_FAIL}) {
        control = component.make("lmListView");
        dispatch = control.as<IDispatch>();
        ConvertingBag bag;
        bag.failure = failure;
        bag.values = {{u"ColumnTextY", u"seven"}, {u"WheelScrollLines", Long{9}}};
        const std::vector<String> reports = load(bag);
        ASSERT_EQ(reports.size(), 1U) << std::hex << failure;
        EXPECT_NE(reports[0].find(failure == DISP_E_OVERFLOW ? u"Error no.: 6\r" : u"Error no.: 13\r"),
                  String::npos)
            << toUtf8(reports[0]);
        EXPECT_EQ(get(L"WheelScrollLines"), Variant(Long{9}));
    }
}

TEST_F(PropertyBagLoading, AMissingNameIsNoFailureHoweverTheBagSaysIt) {
    for (const HRESULT missing : {E_INVALIDARG, E_FAIL, DISP_E_UNKNOWNNAME, STG_E_FILENOTFOUND}) {
        control = component.make("lmListView");
        dispatch = control.as<IDispatch>();
        ConvertingBag bag;
        bag.missing = missing;
        EXPECT_TRUE(load(bag).empty()) << std::hex << missing;
        EXPECT_EQ(get(L"ColumnTextY"), Variant(Long{2}));
    }
}

} // namespace
} // namespace lumtex::testing
