/// \file
/// A runtime whose files fail where a test says so.
#pragma once

#include "failures/failure_point.h"
#include "worlds/headless/headless_runtime.h"

#include <algorithm>

namespace lumtex::testing {

/// Everything of another runtime's. Each operation on a file is a place of `operations`, each byte that is
/// written one of `bytes`: those before the failing one are written.
class FailingFiles final : public Runtime {
  public:
    explicit FailingFiles(HeadlessRuntime& inner) : inner_(inner) {}

    mutable FailurePoint operations;
    FailurePoint bytes;

    String readFile(StringView path) const override { return may().readFile(path); }
    void createFile(StringView path) override { may().createFile(path); }
    void appendToFile(StringView path, StringView text) override {
        const std::size_t whole = wholeBytes(text.size());
        may().appendToFile(path, text.substr(0, whole));
        if (whole < text.size())
            throw RuntimeError(deviceError);
    }
    std::unique_ptr<OutputFile> openForBinaryWriting(StringView path) override {
        return std::make_unique<Output>(*this, may().openForBinaryWriting(path));
    }
    std::unique_ptr<InputFile> openForBinaryReading(StringView path) override {
        return std::make_unique<Input>(*this, may().openForBinaryReading(path));
    }
    void deleteFile(StringView path) override { may().deleteFile(path); }
    Long findFirstFile(StringView pattern) override { return may().findFirstFile(pattern); }

    void DoEvents() override { inner_.DoEvents(); }
    bool hasPendingEvents() const override { return inner_.hasPendingEvents(); }
    void messageBox(StringView text, Long style, StringView title) override {
        inner_.messageBox(text, style, title);
    }
    const ComponentInfo& component() const override { return inner_.component(); }
    Long currentProcessId() const override { return inner_.currentProcessId(); }
    std::optional<std::vector<ProcessEntry>> processes() const override { return inner_.processes(); }
    String fullPathName(StringView file) const override { return inner_.fullPathName(file); }
    std::optional<StoredSetting>
    storedSetting(std::uint32_t hive, StringView key, StringView name) const override {
        return inner_.storedSetting(hive, key, name);
    }
    Date now() const override { return inner_.now(); }
    void toAnsi(StringView text, std::span<Byte> target) const override { inner_.toAnsi(text, target); }
    void fromAnsi(std::span<const Byte> source, std::span<char16_t> text) const override {
        inner_.fromAnsi(source, text);
    }
    std::vector<Byte> imageOfPicture(const Picture& picture) const override {
        return inner_.imageOfPicture(picture);
    }
    PictureRef pictureOfImage(std::span<const Byte> image) const override {
        return inner_.pictureOfImage(image);
    }
    void findClose(Long handle) override { inner_.findClose(handle); }
    ObjectRef createObject(StringView programId) override { return inner_.createObject(programId); }
    ObjectRef applicationObject() override { return inner_.applicationObject(); }
    void playSound(StringView file, Long flags) override { inner_.playSound(file, flags); }
    SystemVersion systemVersion() const override { return inner_.systemVersion(); }
    Long currentThemeName(std::span<char16_t> themeFile,
                          std::span<char16_t> colorName,
                          std::span<char16_t> sizeName) const override {
        return inner_.currentThemeName(themeFile, colorName, sizeName);
    }
    Integer asyncKeyState(Long virtualKey) override { return inner_.asyncKeyState(virtualKey); }
    void shellExecute(const ShellRequest& request) override { inner_.shellExecute(request); }
    Single twipsPerPixelY() const override { return inner_.twipsPerPixelY(); }

  private:
    class Output final : public OutputFile {
      public:
        Output(FailingFiles& files, std::unique_ptr<OutputFile> inner)
            : files_(files), inner_(std::move(inner)) {}
        void write(std::span<const Byte> data) override {
            files_.operations.pass(deviceError);
            const std::size_t whole = files_.wholeBytes(data.size());
            inner_->write(data.first(whole));
            if (whole < data.size())
                throw RuntimeError(diskFull);
        }
        void close() override {
            const bool fails = files_.operations.isHere();
            inner_->close();
            if (fails)
                throw RuntimeError(deviceError);
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
            files_.operations.pass(deviceError);
            return inner_->read(target);
        }

      private:
        FailingFiles& files_;
        std::unique_ptr<InputFile> inner_;
    };

    HeadlessRuntime& may() const {
        operations.pass(deviceError);
        return inner_;
    }
    /// How many of the next `size` bytes get through.
    std::size_t wholeBytes(std::size_t size) {
        for (std::size_t i = 0; i < size; ++i)
            if (bytes.isHere())
                return i;
        return size;
    }

    HeadlessRuntime& inner_;
};

} // namespace lumtex::testing
