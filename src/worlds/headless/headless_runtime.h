/// \file
/// The system around a simulated desktop: everything but files is kept in memory and can be looked at.
#pragma once

#include "platform/runtime.h"
#include "values/locale.h"
#include "worlds/common/machine_files.h"

#include <functional>
#include <iosfwd>
#include <map>
#include <utility>
#include <vector>

namespace lumtex::headless {

class Desktop;

/// Files that note which searches were closed.
class HeadlessFiles final : public worlds::MachineFiles {
  public:
    void findClose(Long handle) override { closedSearches.push_back(handle); }

    std::vector<Long> closedSearches; ///< the handles that `findClose` got, in order
};

/// Plays every part itself but the files. What would depend on machine, user or day is fixed here, or set by
/// a test.
class HeadlessRuntime final : public Runtime,
                              public EventQueue,
                              public Settings,
                              public SystemLocale,
                              public PictureImages,
                              public Automation,
                              public UserDesktop,
                              public Program {
  public:
    struct Box {
        String text;
        BoxStyle style = BoxStyle::plain;
        String title;
    };

    /// Names without regard to case.
    struct NameOrder {
        bool operator()(StringView a, StringView b) const;
    };

    explicit HeadlessRuntime(Desktop& desktop);

    HeadlessRuntime& queue() override { return *this; }
    HeadlessFiles& files() override { return files_; }
    HeadlessRuntime& settings() override { return *this; }
    HeadlessRuntime& locale() override { return *this; }
    HeadlessRuntime& pictures() override { return *this; }
    HeadlessRuntime& automation() override { return *this; }
    HeadlessRuntime& desktop() override { return *this; }
    HeadlessRuntime& program() override { return *this; }

    void DoEvents() override;
    bool hasPendingEvents() const override;
    /// Notes the box and counts as a yield: runs `whileBoxIsOpen`, then the loop, then the box is dismissed.
    /// A box inside too many others is noted and does nothing else.
    void messageBox(StringView text, BoxStyle style, StringView title) override;

    /// Keys and names in any case.
    std::optional<String> text(StringView key, StringView name) const override;

    /// `clock`, and the virtual time that has passed.
    Date now() const override;
    words::Language language() const override { return usersLanguage; }
    /// Code page 1252.
    void toAnsi(StringView text, std::span<Byte> bytes) const override;
    void fromAnsi(std::span<const Byte> bytes, std::span<char16_t> text) const override;

    std::vector<Byte> imageOfPicture(const Picture& picture) const override;
    PictureRef pictureOfImage(std::span<const Byte> image) const override;

    /// Made by one of `factories`.
    ObjectRef createObject(StringView programId) override;
    ObjectRef applicationObject() override { return application; }

    /// Noted, not heard.
    void playSound(StringView file) override { sounds.emplace_back(file); }
    SystemVersion systemVersion() const override { return version; }
    std::optional<String> colorScheme() const override { return scheme; }
    /// The buttons of the desktop's mouse.
    bool wasPressed(MouseButton button) override;
    /// Noted, not opened.
    void open(const OpenRequest& request) override { opened.push_back(request); }

    const ComponentInfo& component() const override { return componentInfo; }
    Long currentProcessId() const override { return processId; }
    std::optional<std::vector<ProcessEntry>> processes() const override { return processList; }

    /// What conversions on this thread follow from now on, as long as the runtime lives; at first they are
    /// invariant. `locale` must outlive the runtime.
    void letLocale(const Locale& locale) { locale_.emplace(locale); }
    void letSetting(StringView key, StringView name, StringView text);

    std::vector<Box> boxes;               ///< all that were shown, in order
    std::function<void()> whileBoxIsOpen; ///< host code, with the box as the last of `boxes`
    /// Where title and text of each box are written as well, in UTF-8; null for nowhere. Must outlive the
    /// desktop.
    std::ostream* boxesTo = nullptr;
    /// At first the project's name and version, and the folder of the running program.
    ComponentInfo componentInfo;
    /// The program of this machine that runs the desktop, under a number that is the same in every run.
    static constexpr Long processId = 4711;
    std::optional<std::vector<ProcessEntry>> processList;
    words::Language usersLanguage = words::Language::english;
    Date clock{36526.5}; ///< the moment at which the virtual clock started; at first noon of 2000-01-01
    /// By program identifier.
    std::map<String, std::function<ObjectRef()>, NameOrder> factories;
    ObjectRef application;
    std::vector<String> sounds;      ///< the files of all that were to be played, in order
    std::vector<OpenRequest> opened; ///< all that was to be opened, in order
    SystemVersion version{2, 5, 1};
    std::optional<String> scheme; ///< empty: the classic look

  private:
    struct SettingOrder {
        using Key = std::pair<String, String>;
        bool operator()(const Key& a, const Key& b) const;
    };

    Desktop& desktop_;
    std::optional<UsingLocale> locale_;
    HeadlessFiles files_;
    std::map<SettingOrder::Key, String, SettingOrder> settings_; ///< by key and name
};

} // namespace lumtex::headless
