/// \file
/// What the system around a Windows program offers: message loop, settings, clock, files, the user's desktop.
#pragma once

#include "platform/runtime.h"
#include "worlds/win32/screen_density.h"
#include "worlds/win32/windows_api.h"

#include <functional>
#include <map>

namespace lumtex {

/// Belongs to one thread. From the first one on, conversions follow the user's settings; files hold text in
/// the code page of the system.
class Win32Runtime : public Runtime {
  public:
    /// Messages that one `DoEvents` delivers at most. What a storm leaves over waits for the next.
    static constexpr int longestYield = 100000;
    /// Yields that may be inside one another; a deeper one returns at once.
    static constexpr int deepestYield = 64;

    /// `instance` is the module whose file is the component.
    explicit Win32Runtime(HINSTANCE instance);
    /// Closes the searches that are left.
    ~Win32Runtime() override;

    /// A timer that is faster than its handler ticks twice at most in one call.
    void DoEvents() override;
    bool hasPendingEvents() const override;
    /// Over the program's active window. What had the focus has it again when the box has closed.
    void messageBox(StringView text, Long style, StringView title) override;
    /// Is a box of `messageBox` open on this thread, whoever of the thread opened it?
    static bool isBoxOpen();
    const ComponentInfo& component() const override { return component_; }
    Long currentProcessId() const override;
    std::optional<std::vector<ProcessEntry>> processes() const override;
    String fullPathName(StringView file) const override;
    std::optional<StoredSetting>
    storedSetting(std::uint32_t hive, StringView key, StringView name) const override;
    std::optional<StoredSetting>
    readOnlySetting(std::uint32_t hive, StringView key, StringView name) const override;
    Date now() const override;

    String readFile(StringView path) const override;
    void createFile(StringView path) override;
    void appendToFile(StringView path, StringView text) override;
    /// Writes a hidden file beside `path` and renames it at the end.
    std::unique_ptr<OutputFile> openForBinaryWriting(StringView path) override;
    std::unique_ptr<InputFile> openForBinaryReading(StringView path) override;
    void deleteFile(StringView path) override;
    /// Characters of more than one byte count as none.
    void toAnsi(StringView text, std::span<Byte> bytes) const override;
    void fromAnsi(std::span<const Byte> bytes, std::span<char16_t> text) const override;
    std::vector<Byte> imageOfPicture(const Picture& picture) const override;
    PictureRef pictureOfImage(std::span<const Byte> image) const override;
    Long findFirstFile(StringView pattern) override;
    void findClose(Long handle) override;

    ObjectRef createObject(StringView programId) override;
    ObjectRef applicationObject() override { return application; }
    void playSound(StringView file, Long flags) override;
    SystemVersion systemVersion() const override;
    Long currentThemeName(std::span<char16_t> themeFile,
                          std::span<char16_t> colorName,
                          std::span<char16_t> sizeName) const override;
    Integer asyncKeyState(Long virtualKey) override;
    void shellExecute(const ShellRequest& request) override;
    Single twipsPerPixelY() const override;

    /// Sees each message that `DoEvents` takes from the queue. True: it was dealt with. Must not throw.
    std::function<bool(MSG&)> onQueued;
    /// Told when a box or form opens that the rest of the program waits for, and when it has closed. Must not
    /// throw.
    std::function<void(bool open)> onModal;
    ObjectRef application; ///< handed to an error handler; none until the component sets it

    /// As long as one lives, a box or form of the program is open.
    class ModalSpan {
      public:
        explicit ModalSpan(Win32Runtime& runtime);
        ModalSpan(const ModalSpan&) = delete;
        ModalSpan& operator=(const ModalSpan&) = delete;
        ~ModalSpan();

      private:
        Win32Runtime& runtime_;
    };

  private:
    ComponentInfo component_;
    PixelDensity density_;
    int yieldDepth_ = 0;
    std::map<Long, HANDLE> searches_; ///< those under way, by the number that stands for the handle
    Long lastSearch_ = 0;
};

} // namespace lumtex
