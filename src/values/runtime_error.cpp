#include "values/runtime_error.h"

#include "values/text.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace lumtex {

namespace {

struct Description {
    Long number;
    const char16_t* text;
};

/// In order of number; the texts are those that hosts know from their own error handling.
constexpr auto descriptions = std::to_array<Description>({
    {5, u"Invalid procedure call or argument"},
    {6, u"Overflow"},
    {7, u"Out of memory"},
    {9, u"Subscript out of range"},
    {11, u"Division by zero"},
    {13, u"Type mismatch"},
    {28, u"Out of stack space"},
    {52, u"Bad file name or number"},
    {53, u"File not found"},
    {54, u"Bad file mode"},
    {55, u"File already open"},
    {57, u"Device I/O error"},
    {58, u"File already exists"},
    {61, u"Disk full"},
    {62, u"Input past end of file"},
    {68, u"Device unavailable"},
    {70, u"Permission denied"},
    {71, u"Disk not ready"},
    {75, u"Path/File access error"},
    {76, u"Path not found"},
    {91, u"Object variable or With block variable not set"},
    {93, u"Invalid pattern string"},
    {94, u"Invalid use of Null"},
    {321, u"Invalid file format"},
    {380, u"Invalid property value"},
    {424, u"Object required"},
    {429, u"ActiveX component can't create object"},
    {430, u"Class does not support Automation or does not support expected interface"},
    {438, u"Object doesn't support this property or method"},
    {440, u"Automation error"},
    {448, u"Named argument not found"},
    {449, u"Argument not optional"},
    {450, u"Wrong number of arguments or invalid property assignment"},
    {457, u"This key is already associated with an element of this collection"},
    {461, u"Method or data member not found"},
    {481, u"Invalid picture"},
});

constexpr StringView unknownNumber = u"Application-defined or object-defined error";

using SharedTexts = std::shared_ptr<const RuntimeError::Texts>;

SharedTexts makeTexts(String description) {
    std::string utf8 = toUtf8(description);
    return std::make_shared<const RuntimeError::Texts>(
        RuntimeError::Texts{std::move(description), std::move(utf8)});
}

/// The texts of `descriptions` at the same positions, and last that of all other numbers.
std::vector<SharedTexts> makeKnownTexts() {
    std::vector<SharedTexts> texts;
    texts.reserve(std::size(descriptions) + 1);
    for (const Description& entry : descriptions)
        texts.push_back(makeTexts(entry.text));
    texts.push_back(makeTexts(String(unknownNumber)));
    return texts;
}

const SharedTexts& textsOf(Long number) {
    static const std::vector<SharedTexts> known = makeKnownTexts();
    const auto* const found = std::lower_bound(
        descriptions.begin(), descriptions.end(), number, [](const Description& entry, Long wanted) {
            return entry.number < wanted;
        });
    if (found != descriptions.end() && found->number == number)
        return known[static_cast<std::size_t>(found - descriptions.begin())];
    return known.back();
}

// Made before anything can fail, since a shortage of memory is itself a failure with a text.
[[maybe_unused]] const SharedTexts& madeAtStart = textsOf(numberOf(ErrorNumber::outOfMemory));

} // namespace

const String& errorDescription(Long number) {
    return textsOf(number)->description;
}

RuntimeError::RuntimeError(Long number) : number_(number), texts_(textsOf(number)) {}

RuntimeError::RuntimeError(Long number, String description)
    : number_(number), texts_(makeTexts(std::move(description))) {}

} // namespace lumtex
