/// \file
/// What the system around a Windows program offers: message loop, settings, clock, files, the user's desktop.
#pragma once

#include "platform/runtime.h"
#include "worlds/win32/stored_settings.h"
#include "worlds/win32/win32_files.h"
#include "worlds/win32/windows_api.h"

#include <functional>

namespace lumtex::win32 {

/// Belongs to one thread. From the first one on, conversions follow the user's settings. Plays itself the
/// parts that share the message loop or have no state.
class Win32Runtime : public Runtime,
                     public EventQueue,
                     public SystemLocale,
                     public PictureImages,
                     public Automation,
                     public UserDesktop,
                     public Program {
  public:
    /// Messages that one `DoEvents` delivers at most. What a storm leaves over waits for the next.
    static constexpr int longestYield = 100000;
    /// Yields that may be inside one another; a deeper one returns at once.
    static constexpr int deepestYield = 64;

    /// `instance` is the module whose file is the component.
    explicit Win32Runtime(HINSTANCE instance);

    Win32Runtime& queue() override { return *this; }
    Win32Files& files() override { return files_; }
    StoredSettings& settings() override { return settings_; }
    Win32Runtime& locale() override { return *this; }
    Win32Runtime& pictures() override { return *this; }
    Win32Runtime& automation() override { return *this; }
    Win32Runtime& desktop() override { return *this; }
    Win32Runtime& program() override { return *this; }

    /// A timer that is faster than its handler ticks twice at most in one call.
    void DoEvents() override;
    bool hasPendingEvents() const override;
    /// Over the program's active window. What had the focus has it again when the box has closed.
    void messageBox(StringView text, BoxStyle style, StringView title) override;
    /// Is a box of `messageBox` open on this thread, whoever of the thread opened it?
    static bool isBoxOpen();

    Date now() const override;
    words::Language language() const override;
    /// A character of more than one byte counts as no character.
    void toAnsi(StringView text, std::span<Byte> bytes) const override;
    void fromAnsi(std::span<const Byte> bytes, std::span<char16_t> text) const override;

    std::vector<Byte> imageOfPicture(const Picture& picture) const override;
    PictureRef pictureOfImage(std::span<const Byte> image) const override;

    ObjectRef createObject(StringView programId) override;
    ObjectRef applicationObject() override { return application; }

    void playSound(StringView file) override;
    SystemVersion systemVersion() const override;
    std::optional<String> colorScheme() const override;
    bool wasPressed(MouseButton button) override;
    void open(const OpenRequest& request) override;

    const ComponentInfo& component() const override { return component_; }
    Long currentProcessId() const override;
    std::optional<std::vector<ProcessEntry>> processes() const override;

    /// Sees each message that `DoEvents` takes from the queue. True: it was dealt with. Must not throw.
    std::function<bool(MSG&)> onQueued;
    /// Told when a box or form opens that the rest of the program waits for, and when it has closed. Must not
    /// throw.
    std::function<void(bool open)> onModal;
    ObjectRef application; ///< handed to an error handler; null until the component sets it

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
    Win32Files files_;
    StoredSettings settings_;
    int yieldDepth_ = 0;
};

} // namespace lumtex::win32
