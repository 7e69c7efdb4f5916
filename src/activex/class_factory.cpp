/// One factory for each public class.
#include "activex/class_factory.h"

#include "activex/com_guard.h"
#include "activex/general_page.h"
#include "activex/guid.h"
#include "activex/helper_object.h"
#include "activex/list_control.h"
#include "worlds/win32/counted_object.h"

#include <mutex>
#include <vector>

namespace lumtex::win32 {

namespace {

/// Objects that start with one reference, the caller's.
using Make = IUnknown* (*)(IUnknown* outer);

IUnknown* makeControl(IUnknown* outer) {
    return &(new ListControl(outer))->inner();
}
IUnknown* makeGeneralPage(IUnknown* /*outer*/) {
    return new GeneralPage;
}
IUnknown* makeSpEv(IUnknown* /*outer*/) {
    return new HelperObject<SpEvTarget>;
}
IUnknown* makeError(IUnknown* /*outer*/) {
    return new HelperObject<ErrorTarget>;
}

struct PublicObject {
    GUID classId;
    Make make;
    bool canBeInside;
};

constexpr PublicObject publicObjects[] = {
    {guidOf("lmListView"), makeControl, true},
    {guidOf("SpEv"), makeSpEv, false},
    {guidOf("Error"), makeError, false},
    {guidFrom(automation::generalPageUuid), makeGeneralPage, false},
};

/// Locks of the host, which outlive the factory that took them and may come from any thread.
struct ServerLocks {
    std::mutex mutex;
    std::vector<ModuleLock> locks;
};
ServerLocks serverLocks;

class ClassFactory final : public CountedObject<IClassFactory> {
  public:
    explicit ClassFactory(const PublicObject& object) : object_(object) {}

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** found) override {
        if (found == nullptr)
            return E_POINTER;
        *found = nullptr;
        if (outer != nullptr && !object_.canBeInside)
            return CLASS_E_NOAGGREGATION;
        // The host's object holds the control by its own identity.
        if (outer != nullptr && !IsEqualIID(iid, IID_IUnknown))
            return E_INVALIDARG;
        return guarded([&] {
            const auto made = ComRef<IUnknown>::adopting(object_.make(outer));
            return made->QueryInterface(iid, found);
        });
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
        const std::lock_guard guard(serverLocks.mutex);
        std::vector<ModuleLock>& locks = serverLocks.locks;
        if (lock != FALSE)
            return guarded([&] {
                locks.emplace_back();
                return S_OK;
            });
        if (!locks.empty())
            locks.pop_back();
        return S_OK;
    }

  private:
    const PublicObject& object_;
};

} // namespace

HRESULT classFactory(const CLSID& classId, REFIID iid, void** found) noexcept {
    if (found == nullptr)
        return E_POINTER;
    *found = nullptr;
    for (const PublicObject& object : publicObjects)
        if (IsEqualCLSID(classId, object.classId))
            return guarded([&] {
                const auto factory = ComRef<ClassFactory>::adopting(new ClassFactory(object));
                return factory->QueryInterface(iid, found);
            });
    return CLASS_E_CLASSNOTAVAILABLE;
}

} // namespace lumtex::win32
