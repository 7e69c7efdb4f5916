/// \file
/// What the system around a program of Qt offers: event loop, settings, clock, files, the user's desktop.
#pragma once

#include "platform/runtime.h"
#include "worlds/common/machine_files.h"
#include "worlds/common/pointer.h"
#include "worlds/qt/sound_player.h"

#include <chrono>
#include <functional>
#include <map>

namespace lumtex::qt {

/// Plays itself all parts but the files.
class QtRuntime : public Runtime,
                  public EventQueue,
                  public Settings,
                  public SystemLocale,
                  public PictureImages,
                  public Automation,
                  public UserDesktop,
                  public Program {
  public:
    /// Passes over the queue that one `DoEvents` makes at most. What a storm leaves over waits for the next.
    static constexpr int mostPasses = 64;
    /// Yields that may be inside one another; a deeper one returns at once.
    static constexpr int deepestYield = 64;

    /// From here on the program converts texts by the locale of its user.
    explicit QtRuntime(worlds::Pointer& pointer);

    QtRuntime& queue() override { return *this; }
    worlds::MachineFiles& files() override { return files_; }
    QtRuntime& settings() override { return *this; }
    QtRuntime& locale() override { return *this; }
    QtRuntime& pictures() override { return *this; }
    QtRuntime& automation() override { return *this; }
    QtRuntime& desktop() override { return *this; }
    QtRuntime& program() override { return *this; }

    /// As long as one lives, yields let nothing through: Qt is in the middle of showing, placing or leaving
    /// widgets, and goes on with those that it had in hand.
    class HeldYields {
      public:
        HeldYields() { ++held; }
        HeldYields(const HeldYields&) = delete;
        HeldYields& operator=(const HeldYields&) = delete;
        ~HeldYields() { --held; }
    };
    static bool areYieldsHeld() { return held > 0; }

    /// Does nothing once the application ends.
    void DoEvents() override;
    /// Qt does not tell. A look right after a yield counts as one of the same moment, and finds nothing.
    bool hasPendingEvents() const override;
    /// Waits until the user has closed it. Where yields are held, the box is shown behind what holds them,
    /// and nobody waits: its loop would be one more yield.
    void messageBox(StringView text, BoxStyle style, StringView title) override;
    static bool isBoxOpen() { return openBoxes > 0; }
    /// The application was told to end, or there is none.
    bool isQuitting() const;

    /// From the application's settings file: the parts of a key are groups.
    std::optional<String> text(StringView key, StringView name) const override;

    Date now() const override;
    words::Language language() const override;
    /// Code page 1252.
    void toAnsi(StringView text, std::span<Byte> bytes) const override;
    void fromAnsi(std::span<const Byte> bytes, std::span<char16_t> text) const override;

    std::vector<Byte> imageOfPicture(const Picture& picture) const override;
    PictureRef pictureOfImage(std::span<const Byte> image) const override;

    /// Made by one of `factories`.
    ObjectRef createObject(StringView programId) override;
    ObjectRef applicationObject() override { return nullptr; }

    /// Nothing is heard where there is neither sound server nor device.
    void playSound(StringView file) override;
    SystemVersion systemVersion() const override;
    /// No theme of these systems has one of the names.
    std::optional<String> colorScheme() const override { return std::nullopt; }
    bool wasPressed(MouseButton button) override;
    void open(const OpenRequest& request) override;

    const ComponentInfo& component() const override { return component_; }
    Long currentProcessId() const override;
    std::optional<std::vector<ProcessEntry>> processes() const override;

    /// By program identifier.
    std::map<String, std::function<ObjectRef()>> factories;

  private:
    static void showBox(StringView text, BoxStyle style, StringView title);

    worlds::Pointer& pointer_;
    ComponentInfo component_;
    SoundPlayer sounds_;
    worlds::MachineFiles files_;
    // Of the thread of the application, the only one with widgets.
    static inline int held = 0;
    static inline int openBoxes = 0;

    int yieldDepth_ = 0;
    std::chrono::steady_clock::time_point lastYield_;
};

} // namespace lumtex::qt
