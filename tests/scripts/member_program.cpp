/// Uses of members, and their spelling in each language.
#include "scripts/member_program.h"

#include "automation/record_table.h"
#include "values/text.h"

#include <algorithm>

namespace lumtex::testing {

namespace {

struct NamedValue {
    StringView parameter;
    Variant value;
};

/// Parameters whose values must mean something. A file's name goes behind the folder.
const std::vector<NamedValue>& valuesByName() {
    static const std::vector<NamedValue> values{
        {u"Index", Long{2}},
        {u"Row", Long{2}},
        {u"Column", Long{1}},
        {u"aIndex", Long{1}},
        {u"aSplit", u";"},
        {u"aItemTexts", u"new;x;y"},
        {u"aAlignment", Long{2}},
        {u"SortMode", Long{2}},
        {u"SortType", Long{1}},
        {u"sFind", u"b*"},
        {u"cBegin", Long{0}},
        {u"cCompare", Long{1}},
        {u"sColumns", u"1,2,"},
        {u"sRows", u"2-3,"},
        {u"lColumns", Long{2}},
    };
    return values;
}

bool isFileName(StringView parameter) {
    return parameter == u"sFilename" || parameter == u"Filename" || parameter == u"sFile";
}

bool takesList(const automation::Member& member) {
    return member.count > 0 &&
           member.entries[member.count - 1].type.code == automation::TypeCode::variantList;
}

String number(std::size_t value) {
    const std::string digits = std::to_string(value);
    return {digits.begin(), digits.end()};
}

String quotedForVbScript(StringView text) {
    String quoted = u"\"";
    for (const char16_t unit : text)
        quoted += unit == u'"' ? String(u"\"\"") : String(1, unit);
    return quoted + u"\"";
}

String quotedForJScript(StringView text) {
    String quoted = u"\"";
    for (const char16_t unit : text) {
        if (unit == u'"' || unit == u'\\')
            quoted += u'\\';
        quoted += unit;
    }
    return quoted + u"\"";
}

/// Only what stands for a value of its own; objects have their names.
String nameOfSample(const Variant& value) {
    if (value.as<PictureRef>() != nullptr)
        return u"samplePicture";
    if (value.as<FontRef>() != nullptr)
        return u"sampleFont";
    return u"sampleObject";
}

/// Numbers keep their kinds in VBScript alone.
String literal(ScriptLanguage language, const Variant& value) {
    const bool inVbScript = language == ScriptLanguage::vbScript;
    if (value.isMissing())
        return {};
    if (value.isObject())
        return nameOfSample(value);
    if (value.isString())
        return inVbScript ? quotedForVbScript(value.toText()) : quotedForJScript(value.toText());
    if (const bool* truth = value.as<bool>())
        return inVbScript ? (*truth ? u"True" : u"False") : (*truth ? u"true" : u"false");
    const String text = value.toText();
    if (!inVbScript)
        return text;
    const bool whole = value.as<Long>() != nullptr;
    return (whole ? u"CLng(" : value.as<Integer>() != nullptr ? u"CInt(" : u"CSng(") + text + u")";
}

/// What programs differ in.
struct Words {
    ScriptLanguage language;

    bool inVbScript() const { return language == ScriptLanguage::vbScript; }
    /// Outside of functions, where every program after it knows it too. VBScript declares no name twice.
    String variable(const String& name) const {
        return inVbScript() ? name + u" = Empty\n" : u"var " + name + u"\n";
    }
    String assign(const String& to, const String& value, bool object) const {
        return (inVbScript() && object ? u"Set " : u"") + to + u" = " + value + u"\n";
    }
    String function(const String& body, bool gives) const {
        return inVbScript()
                   ? u"Function Use(target)\n" + body + u"End Function\n"
                   : u"function Use(target) {\n" + body + (gives ? u"return result\n" : u"") + u"}\n";
    }
    String result() const { return inVbScript() ? u"Use" : u"result"; }
};

bool isObjectType(const automation::Member& member) {
    return member.isReference() || member.type.code == automation::TypeCode::record;
}

} // namespace

std::string MemberUse::shown() const {
    std::string text = kind == Kind::get ? "get(" : kind == Kind::let ? "let(" : "call(";
    for (const Variant& argument : arguments)
        text += (text.back() == '(' ? "" : ", ") + toUtf8(literal(ScriptLanguage::jScript, argument));
    return text + ")";
}

Variant SampleValues::valueFor(const automation::Parameter& parameter) const {
    if (isFileName(parameter.name))
        return folder_ + String(parameter.name) + u".txt";
    const auto& values = valuesByName();
    const auto found = std::ranges::find(values, parameter.name, &NamedValue::parameter);
    return found == values.end() ? byType(parameter.type.code) : found->value;
}

Variant SampleValues::byType(automation::TypeCode type) const {
    switch (type) {
    case automation::TypeCode::boolean:
        return true;
    case automation::TypeCode::integer:
        return Integer{1};
    case automation::TypeCode::single:
        return 37.5F;
    case automation::TypeCode::string:
        return u"sample \"text\"";
    case automation::TypeCode::enumeration:
        return Long{2};
    case automation::TypeCode::picture:
        return named_.picture;
    case automation::TypeCode::font:
        return named_.font;
    case automation::TypeCode::object:
        return named_.object;
    default:
        return Long{0x1234};
    }
}

std::vector<MemberUse>
usesOf(const automation::Member& member, const SampleValues& samples, bool inTheMiddle) {
    std::vector<Variant> all;
    std::size_t needed = 0;
    for (const automation::Parameter& parameter : member.parameters()) {
        all.push_back(samples.valueFor(parameter));
        if (!parameter.optional())
            needed = all.size();
    }
    std::vector<std::vector<Variant>> ways;
    for (std::size_t count = all.size() + 1; count > needed; --count)
        ways.emplace_back(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(count - 1));
    if (takesList(member)) {
        ways.push_back(all);
        ways.back().push_back(Long{1});
    }
    for (std::size_t i = 0; inTheMiddle && i + 1 < all.size(); ++i)
        if (member.entries[i].optional()) {
            ways.push_back(all);
            ways.back()[i] = Missing{};
        }
    std::vector<MemberUse> uses;
    for (const auto& arguments : ways) {
        if (member.get != nullptr)
            uses.push_back({MemberUse::Kind::get, arguments, {}});
        // Of the two, one is not what a new object holds.
        if (member.let != nullptr && member.type.code == automation::TypeCode::boolean)
            uses.push_back({MemberUse::Kind::let, arguments, false});
        if (member.let != nullptr)
            uses.push_back({MemberUse::Kind::let, arguments, samples.assignedTo(member)});
        if (member.call != nullptr)
            uses.push_back({MemberUse::Kind::call, arguments, {}});
    }
    return uses;
}

String programFor(ScriptLanguage language, const automation::Member& member, const MemberUse& use) {
    const Words words{language};
    String head;
    String body;
    String list;
    for (std::size_t i = 0; i < use.arguments.size(); ++i) {
        const Variant& argument = use.arguments[i];
        String spelled = literal(language, argument);
        if (i < member.count && member.entries[i].byReference && !argument.isMissing()) {
            const String variable = u"argument" + number(i);
            head += words.variable(variable);
            body += words.assign(variable, spelled, argument.isObject());
            spelled = variable;
        }
        list += (i == 0 ? u"" : u", ") + spelled;
    }
    const String name = u"target." + String(member.name);
    const bool isCall = use.kind == MemberUse::Kind::call;
    const String expression =
        list.empty() && !(isCall && language == ScriptLanguage::jScript) ? name : name + u"(" + list + u")";
    if (use.kind == MemberUse::Kind::let)
        body += words.assign(expression, literal(language, use.value), member.isReference());
    else if (member.type.code == automation::TypeCode::none)
        body += language == ScriptLanguage::vbScript ? name + u" " + list + u"\n" : expression + u"\n";
    else
        body += (language == ScriptLanguage::jScript ? u"var " : u"") +
                words.assign(words.result(), expression, isObjectType(member));
    if (member.type.code == automation::TypeCode::record)
        for (std::size_t i = 0; i < automation::findResultsFields.size(); ++i) {
            const String field = u"field" + number(i);
            head += words.variable(field);
            body += words.assign(
                field, words.result() + u"." + String(automation::findResultsFields[i].name), false);
        }
    const bool gives = use.kind != MemberUse::Kind::let && member.type.code != automation::TypeCode::none;
    return head + words.function(body, gives);
}

} // namespace lumtex::testing
