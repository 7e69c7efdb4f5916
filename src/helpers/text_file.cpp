#include "helpers/text_file.h"

#include "values/runtime_error.h"

#include <algorithm>
#include <utility>

namespace lumtex {

namespace {

constexpr std::size_t mostWaiting = 65536; // code units

} // namespace

void TextFile::openForInput(StringView path) {
    content_ = files_.readFile(path);
    place_ = 0;
    open_ = true;
}

void TextFile::openForOutput(StringView path) {
    files_.createFile(path);
    path_ = path;
    open_ = true;
}

void TextFile::demandOpen() const {
    if (!open_)
        throw RuntimeError(ErrorNumber::badFileNumber);
}

void TextFile::writeOut() {
    if (!path_.empty() && !content_.empty())
        files_.appendToFile(path_, std::exchange(content_, {}));
}

void TextFile::close() {
    open_ = false;
    writeOut();
}

String TextFile::readAll() {
    demandOpen();
    return content_.substr(std::exchange(place_, content_.size()));
}

bool TextFile::atEnd() const {
    demandOpen();
    return place_ >= content_.size();
}

String TextFile::lineInput() {
    demandOpen();
    // Wanted: a line feed alone ends no line, so that entries which hold one come back whole.
    const std::size_t end = std::min(content_.find(u'\r', place_), content_.size());
    String line = content_.substr(place_, end - place_);
    place_ = end;
    if (place_ < content_.size())
        ++place_;
    if (place_ > end && place_ < content_.size() && content_[place_] == u'\n')
        ++place_;
    return line;
}

void TextFile::print(StringView text) {
    demandOpen();
    content_ += text;
    if (content_.size() >= mostWaiting)
        writeOut();
}

} // namespace lumtex
