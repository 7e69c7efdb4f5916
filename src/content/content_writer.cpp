#include "content/content_writer.h"

#include "guards/failure_of.h"

#include <algorithm>
#include <exception>

namespace lumtex::content {

void ContentWriter::open(StringView path) {
    file_ = runtime_.files().openForBinaryWriting(path);
    buffer_.resize(bufferSize);
    failure_ = 0;
}

void ContentWriter::demandUsable() const {
    if (failure_ != 0)
        throw RuntimeError(failure_);
}

void ContentWriter::writeOut() {
    const std::size_t waiting = used_;
    used_ = 0;
    try {
        file_->write({buffer_.data(), waiting});
    } catch (const std::exception& caught) {
        failure_ = failureFrom(caught).number();
        buffer_.clear();
        throw;
    }
}

void ContentWriter::makeRoom() {
    demandUsable();
    writeOut();
}

void ContentWriter::close() {
    if (!file_)
        return;
    const std::unique_ptr<OutputFile> file = std::move(file_);
    std::exception_ptr lost;
    if (failure_ == 0 && used_ > 0) {
        try {
            file->write({buffer_.data(), used_});
        } catch (const std::exception&) {
            lost = std::current_exception();
        }
    }
    failure_ = numberOf(ErrorNumber::badFileNumber);
    buffer_.clear();
    used_ = 0;
    file->close();
    if (lost)
        std::rethrow_exception(lost);
}

void ContentWriter::putBytes(std::span<const Byte> bytes) {
    demandUsable();
    while (!bytes.empty()) {
        Byte* const target = room(1);
        const std::size_t count = std::min(bytes.size(), buffer_.size() - used_);
        std::copy_n(bytes.begin(), count, target);
        used_ += count;
        bytes = bytes.subspan(count);
    }
}

void ContentWriter::putText(StringView text) {
    demandUsable();
    while (!text.empty()) {
        Byte* const target = room(1);
        const std::size_t count = std::min(text.size(), buffer_.size() - used_);
        runtime_.locale().toAnsi(text.substr(0, count), {target, count});
        used_ += count;
        text.remove_prefix(count);
    }
}

} // namespace lumtex::content
