/// \file
/// A runtime whose files fail where a test says so.
#pragma once

#include "failures/failure_point.h"
#include "platform/runtime.h"

namespace lumtex::testing {

/// Each operation on a file is a place of `operations`, each byte that is written one of `bytes`: those
/// before the failing one are written.
class FailingFiles final : public Files {
  public:
    explicit FailingFiles(Files& inner) : inner_(inner) {}

    mutable FailurePoint operations;
    FailurePoint bytes;

    String readFile(StringView path) const override { return may().readFile(path); }
    void createFile(StringView path) override { may().createFile(path); }
    void appendToFile(StringView path, StringView text) override {
        const std::size_t whole = wholeBytes(text.size());
        may().appendToFile(path, text.substr(0, whole));
        if (whole < text.size())
            throw RuntimeError(ErrorNumber::deviceError);
    }
    std::unique_ptr<OutputFile> openForBinaryWriting(StringView path) override {
        return std::make_unique<Output>(*this, may().openForBinaryWriting(path));
    }
    std::unique_ptr<InputFile> openForBinaryReading(StringView path) override {
        return std::make_unique<Input>(*this, may().openForBinaryReading(path));
    }
    void deleteFile(StringView path) override { may().deleteFile(path); }
    Long findFirstFile(StringView pattern) override { return may().findFirstFile(pattern); }

    void findClose(Long handle) override { inner_.findClose(handle); }
    String fullPathName(StringView file) const override { return inner_.fullPathName(file); }

  private:
    class Output final : public OutputFile {
      public:
        Output(FailingFiles& files, std::unique_ptr<OutputFile> inner)
            : files_(files), inner_(std::move(inner)) {}
        void write(std::span<const Byte> data) override {
            files_.operations.pass(ErrorNumber::deviceError);
            const std::size_t whole = files_.wholeBytes(data.size());
            inner_->write(data.first(whole));
            if (whole < data.size())
                throw RuntimeError(ErrorNumber::diskFull);
        }
        void close() override {
            const bool fails = files_.operations.isHere();
            inner_->close();
            if (fails)
                throw RuntimeError(ErrorNumber::deviceError);
        }

      private:
        FailingFiles& files_;
        std::unique_ptr<OutputFile> inner_;
    };

    class Input final : public InputFile {
      public:
        Input(FailingFiles& files, std::unique_ptr<InputFile> inner)
            : files_(files), inner_(std::move(inner)) {}
        std::int64_t size() const override { return inner_->size(); }
        std::size_t read(std::span<Byte> target) override {
            files_.operations.pass(ErrorNumber::deviceError);
            return inner_->read(target);
        }

      private:
        FailingFiles& files_;
        std::unique_ptr<InputFile> inner_;
    };

    Files& may() const {
        operations.pass(ErrorNumber::deviceError);
        return inner_;
    }
    /// How many of the next `size` bytes get through.
    std::size_t wholeBytes(std::size_t size) {
        for (std::size_t i = 0; i < size; ++i)
            if (bytes.isHere())
                return i;
        return size;
    }

    Files& inner_;
};

/// Everything of another runtime's but its files.
class RuntimeWithFailingFiles final : public Runtime {
  public:
    explicit RuntimeWithFailingFiles(Runtime& inner) : failing(inner.files()), inner_(inner) {}

    FailingFiles failing;

    EventQueue& queue() override { return inner_.queue(); }
    Files& files() override { return failing; }
    Settings& settings() override { return inner_.settings(); }
    SystemLocale& locale() override { return inner_.locale(); }
    PictureImages& pictures() override { return inner_.pictures(); }
    Automation& automation() override { return inner_.automation(); }
    UserDesktop& desktop() override { return inner_.desktop(); }
    Program& program() override { return inner_.program(); }

  private:
    Runtime& inner_;
};

} // namespace lumtex::testing
