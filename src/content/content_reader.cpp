#include "content/content_reader.h"

#include "guards/failure_of.h"

#include <algorithm>

namespace lumtex::content {

void ContentReader::open(StringView path) {
    file_ = runtime_.files().openForBinaryReading(path);
    behindBuffer_ = file_->size();
    buffer_.resize(bufferSize);
    failure_ = 0;
}

void ContentReader::close() {
    file_.reset();
    failure_ = numberOf(ErrorNumber::badFileNumber);
    goToEnd();
}

void ContentReader::demandUsable() const {
    if (failure_ != 0)
        throw RuntimeError(failure_);
}

void ContentReader::goToEnd() {
    place_ = end_ = 0;
    behindBuffer_ = 0;
}

void ContentReader::refill() {
    std::copy(buffer_.data() + place_, buffer_.data() + end_, buffer_.data());
    end_ -= place_;
    place_ = 0;
    const auto wanted = static_cast<std::size_t>(
        std::min<std::int64_t>(behindBuffer_, static_cast<std::int64_t>(bufferSize - end_)));
    try {
        const std::size_t got = file_->read({buffer_.data() + end_, wanted});
        end_ += got;
        // A file that became shorter ends here.
        behindBuffer_ = got == wanted ? behindBuffer_ - static_cast<std::int64_t>(got) : 0;
    } catch (const std::exception& caught) {
        failure_ = failureFrom(caught).number();
        goToEnd();
    }
}

void ContentReader::fetch(std::size_t size) {
    if (static_cast<std::int64_t>(size) <= remaining())
        refill();
    demandUsable();
    if (size > end_ - place_) {
        goToEnd();
        throw RuntimeError(ErrorNumber::inputPastEnd);
    }
}

bool ContentReader::lookAhead() {
    const std::size_t before = end_ - place_;
    if (behindBuffer_ > 0)
        refill();
    return end_ - place_ > before;
}

void ContentReader::demand(Long length) {
    demandUsable();
    if (length < 0)
        throw RuntimeError(ErrorNumber::invalidProcedureCall);
    if (length > remaining()) {
        goToEnd();
        throw RuntimeError(ErrorNumber::inputPastEnd);
    }
}

/// Hands `length` bytes to `take`, as they come into the buffer.
template <class Take>
void ContentReader::inPieces(std::size_t length, Take take) {
    while (length > 0) {
        const Byte* const bytes = next(1);
        const std::size_t count = std::min(length, end_ - place_);
        take(std::span<const Byte>(bytes, count));
        place_ += count;
        length -= count;
    }
}

String ContentReader::getText(Long length) {
    demand(length);
    String text(static_cast<std::size_t>(length), u'\0');
    std::size_t done = 0;
    inPieces(text.size(), [&](std::span<const Byte> bytes) {
        runtime_.locale().fromAnsi(bytes, std::span(text).subspan(done, bytes.size()));
        done += bytes.size();
    });
    return text;
}

std::vector<Byte> ContentReader::getBytes(Long length) {
    demand(length);
    std::vector<Byte> all;
    all.reserve(static_cast<std::size_t>(length));
    inPieces(static_cast<std::size_t>(length),
             [&](std::span<const Byte> bytes) { all.insert(all.end(), bytes.begin(), bytes.end()); });
    return all;
}

void ContentReader::skip(Long length) {
    demand(length);
    inPieces(static_cast<std::size_t>(length), [](std::span<const Byte>) {});
}

} // namespace lumtex::content
