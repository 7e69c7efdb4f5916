/// What the list holds of its host's, and when it lets go of it.
#include "fake_runtime.h"
#include "guards/held.h"
#include "guards/procedure.h"

namespace lumtex::testing {
namespace {

/// Says when it goes.
std::shared_ptr<Object> noted(bool& gone);

class NotedObject final : public Object {
  public:
    explicit NotedObject(bool& gone) : gone_(gone) {}
    ~NotedObject() override { gone_ = true; }
    Variant get(StringView /*name*/, std::span<Variant> /*arguments*/) override { return {}; }
    void put(StringView /*name*/, const Variant& /*value*/) override {}
    Variant call(StringView /*name*/, std::span<Variant> /*arguments*/) override { return {}; }

  private:
    bool& gone_;
};

std::shared_ptr<Object> noted(bool& gone) {
    gone = false;
    return std::make_shared<NotedObject>(gone);
}

Procedure procedureOf(Runtime& runtime) {
    return {runtime, u"Test", ModuleKind::module, u"test"};
}

class Releasing : public ::testing::Test {
  protected:
    FakeRuntime runtime;
    bool gone = false;
};

TEST_F(Releasing, WaitsForTheEndOfTheProcedure) {
    Held<ObjectRef> field(noted(gone));
    {
        Procedure p = procedureOf(runtime);
        field = nullptr;
        EXPECT_FALSE(gone);
    }
    EXPECT_TRUE(gone);
}

TEST_F(Releasing, IsTheInnermostProceduresBusiness) {
    Held<Variant> field(Variant(ObjectRef(noted(gone))));
    Procedure outer = procedureOf(runtime);
    {
        Procedure inner = procedureOf(runtime);
        field = u"a text";
        EXPECT_FALSE(gone);
    }
    EXPECT_TRUE(gone);
}

TEST_F(Releasing, HappensAtOnceWhereNoProcedureRuns) {
    Held<ObjectRef> field(noted(gone));
    field = nullptr;
    EXPECT_TRUE(gone);
}

TEST_F(Releasing, OfAFieldThatGoesWaitsToo) {
    Procedure outer = procedureOf(runtime);
    {
        Procedure p = procedureOf(runtime);
        { const Held<ObjectRef> field(noted(gone)); }
        EXPECT_FALSE(gone);
    }
    EXPECT_TRUE(gone);
}

TEST_F(Releasing, LeavesWhatOthersStillHold) {
    const ObjectRef kept = noted(gone);
    Held<ObjectRef> field(kept);
    field = nullptr;
    EXPECT_FALSE(gone);
    EXPECT_EQ(kept.use_count(), 1);
}

TEST_F(Releasing, OfThingsThatGiveNewOnesEnds) {
    // Each of a thousand puts the next one into the field as it goes.
    int left = 1000;
    Held<ObjectRef> field;
    struct Chain final : Object {
        Chain(int& count, Held<ObjectRef>& place) : left_(count), field_(place) {}
        ~Chain() override {
            if (--left_ > 0) {
                field_ = std::make_shared<Chain>(left_, field_);
                field_ = nullptr;
            }
        }
        Variant get(StringView /*name*/, std::span<Variant> /*arguments*/) override { return {}; }
        void put(StringView /*name*/, const Variant& /*value*/) override {}
        Variant call(StringView /*name*/, std::span<Variant> /*arguments*/) override { return {}; }
        int& left_;
        Held<ObjectRef>& field_;
    };
    {
        Procedure p = procedureOf(runtime);
        field = std::make_shared<Chain>(left, field);
        field = nullptr;
    }
    EXPECT_EQ(left, 0);
}

TEST_F(Releasing, OfACallersArgumentWaits) {
    Variant argument{ObjectRef(noted(gone))};
    {
        Procedure p = procedureOf(runtime);
        writeBack(argument, Long{3});
        EXPECT_FALSE(gone);
    }
    EXPECT_TRUE(gone);
    EXPECT_EQ(argument.toLong(), 3);
}

TEST(ControlLifeOfAControl, EndsWithTheLastCallOnceItsOwnerLetItGo) {
    int destroyed = 0;
    ControlLife life(&destroyed, [](void* count) { ++*static_cast<int*>(count); });
    life.enter();
    life.enter();
    life.letGo();
    life.leave();
    EXPECT_EQ(destroyed, 0);
    life.leave();
    EXPECT_EQ(destroyed, 1);
}

TEST(ControlLifeOfAControl, OutlastsCallsWhileItsOwnerKeepsIt) {
    int destroyed = 0;
    ControlLife life(&destroyed, [](void* count) { ++*static_cast<int*>(count); });
    life.enter();
    life.leave();
    EXPECT_EQ(destroyed, 0);
}

} // namespace
} // namespace lumtex::testing
