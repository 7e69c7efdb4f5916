#include "helpers/sp_ev.h"

#include "guards/failure_of.h"
#include "helpers/file_exists.h"
#include "helpers/text_file.h"
#include "values/runtime_error.h"
#include "values/variant.h"

#include <array>

namespace lumtex {

namespace {

constexpr StringView lineEnd = u"\r\n";

Object& objectOf(const ObjectRef& reference) {
    if (!reference)
        throw RuntimeError(ErrorNumber::objectVariableNotSet);
    return *reference;
}

/// An entry as it joins other text, where Null counts as none.
String entryText(const ObjectRef& list, Integer index) {
    std::array<Variant, 1> arguments = {Variant(index)};
    const Variant entry = objectOf(list).get(u"List", arguments);
    return entry.isNull() ? String() : entry.toText();
}

/// Throws an overflow at 32767.
Integer next(Integer index) {
    return Variant(Long{index} + 1).toInteger();
}

} // namespace

Procedure SpEv::procedure(StringView name) const {
    return {runtime_, name, ModuleKind::classModule, u"SpEv"};
}

String SpEv::TextRead(StringView Filename) {
    Procedure p = procedure(u"TextRead");
    TextFile file(runtime_.files());
    p.step([&] { file.openForInput(Filename); });
    String text = p.value<String>([&] { return file.readAll(); });
    file.close();
    return text;
}

void SpEv::TextSave(StringView Filename, StringView Text) {
    Procedure p = procedure(u"TextSave");
    TextFile file(runtime_.files());
    p.step([&] { file.openForOutput(Filename); });
    p.step([&] { file.print(Text); });
    p.step([&] { file.close(); });
}

void SpEv::PlayMusic(StringView Filename) {
    Procedure p = procedure(u"PlayMusic");
    p.step([&] { runtime_.desktop().playSound(Filename); });
}

void SpEv::ListSave(const ObjectRef& List,
                    StringView Filename,
                    StringView TextBeforeListText,
                    StringView TextAfterListText) {
    Procedure p = procedure(u"ListSave");
    TextFile file(runtime_.files());
    p.step([&] { file.openForOutput(Filename); });
    const Long count = p.value<Long>([&] { return objectOf(List).get(u"ListCount").toLong(); });
    Integer index = 0;
    while (index < count) {
        p.step([&] {
            String line(TextBeforeListText);
            line.append(entryText(List, index)).append(TextAfterListText).append(lineEnd);
            file.print(line);
        });
        // Wanted: the index is an Integer, so a list of more than 32767 entries ends in an overflow.
        if (!p.step([&] { index = next(index); }))
            break;
    }
    p.step([&] { file.close(); });
}

void SpEv::ListRead(const ObjectRef& List, StringView Filename) {
    Procedure p = procedure(u"ListRead");
    TextFile file(runtime_.files());
    p.step([&] { file.openForInput(Filename); });
    while (!p.condition([&] { return file.atEnd(); }, true)) {
        std::array<Variant, 1> arguments = {p.value<String>([&] { return file.lineInput(); })};
        p.step([&] { objectOf(List).call(u"AddItem", arguments); });
    }
    file.close();
}

bool SpEv::FileExists(StringView sFile) {
    bool exists = false;
    ignoringErrors([&] { exists = lumtex::FileExists(runtime_.files(), sFile); });
    return exists;
}

} // namespace lumtex
