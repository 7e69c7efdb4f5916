#include "adapters/json/json_members.h"

#include "values/runtime_error.h"

namespace lumtex::json {

namespace {

using Json = nlohmann::json;

/// Takes a text piece by piece. The library's own readers look at all members of an object whenever one of
/// them ends, or begins.
class MemberReader final : public nlohmann::json_sax<Json> {
  public:
    std::vector<JsonMember> members;

    bool null() override { return take(nullptr); }
    bool boolean(bool value) override { return take(value); }
    bool number_integer(number_integer_t value) override { return take(value); }
    bool number_unsigned(number_unsigned_t value) override { return take(value); }
    bool number_float(number_float_t value, const string_t& /*text*/) override { return take(value); }
    bool string(string_t& value) override { return take(std::move(value)); }
    bool binary(binary_t& /*value*/) override { return false; }
    bool key(string_t& name) override {
        name_ = std::move(name);
        return true;
    }
    bool start_object(std::size_t /*size*/) override {
        if (inside_)
            return open(Json::object());
        inside_ = true;
        return true;
    }
    bool start_array(std::size_t /*size*/) override { return open(Json::array()); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }
    bool parse_error(std::size_t /*place*/,
                     const std::string& /*token*/,
                     const nlohmann::detail::exception& /*reason*/) override {
        return false;
    }

  private:
    bool take(Json value) { return place(std::move(value)) != nullptr; }
    /// Null outside of the object.
    Json* place(Json value) {
        if (!inside_)
            return nullptr;
        if (open_.empty()) {
            members.push_back({std::move(name_), std::move(value)});
            return &members.back().value;
        }
        Json& holder = *open_.back();
        if (holder.is_array()) {
            holder.push_back(std::move(value));
            return &holder.back();
        }
        Json& held = holder[name_];
        held = std::move(value);
        return &held;
    }
    bool open(Json value) {
        if (open_.size() + 1 >= deepestJson)
            return false;
        Json* const opened = place(std::move(value));
        if (opened != nullptr)
            open_.push_back(opened);
        return opened != nullptr;
    }
    bool close() {
        if (!open_.empty())
            open_.pop_back();
        return true;
    }

    bool inside_ = false;     ///< the object has begun
    std::vector<Json*> open_; ///< the values within it that are not at their end, from outside to inside
    std::string name_;
};

} // namespace

std::vector<JsonMember> membersOfObject(std::string_view text) {
    MemberReader reader;
    if (!Json::sax_parse(text, &reader, Json::input_format_t::json, true, true))
        throw RuntimeError(ErrorNumber::invalidFileFormat);
    return std::move(reader.members);
}

} // namespace lumtex::json
