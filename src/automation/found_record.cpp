/// The result of a search as an object.
#include "automation/found_record.h"

#include "values/runtime_error.h"
#include "values/text.h"

namespace lumtex::automation {

namespace {

class FoundRecord final : public Object {
  public:
    explicit FoundRecord(const FindResults& found) : found_(found) {}

    Variant get(StringView name, std::span<Variant> arguments) override {
        if (!arguments.empty())
            throw RuntimeError(ErrorNumber::wrongNumberOfArguments);
        if (sameName(name, u"FindSuccessful"))
            return found_.FindSuccessful;
        if (sameName(name, u"FindRow"))
            return found_.FindRow;
        if (sameName(name, u"FindColumn"))
            return found_.FindColumn;
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    void put(StringView /*name*/, const Variant& /*value*/) override {
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    Variant call(StringView name, std::span<Variant> arguments) override { return get(name, arguments); }

  private:
    FindResults found_;
};

} // namespace

ObjectRef makeFoundRecord(const FindResults& found) {
    return std::make_shared<FoundRecord>(found);
}

} // namespace lumtex::automation
