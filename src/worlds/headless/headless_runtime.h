/// \file
/// The system around a simulated desktop: everything but files is kept in memory and can be looked at.
#pragma once

#include "values/locale.h"
#include "worlds/common/machine_files.h"

#include <functional>
#include <map>
#include <tuple>
#include <vector>

namespace lumtex {

class Desktop;

/// What would depend on machine, user or day is fixed here, or set by a test.
class HeadlessRuntime final : public MachineFiles {
  public:
    struct Box {
        String text;
        Long style = boxPlain;
        String title;
    };

    struct Sound {
        String file;
        Long flags = 0;
    };

    /// What `currentThemeName` tells.
    struct Theme {
        String file;
        String colorName;
        String sizeName;
    };

    /// Names without regard to case.
    struct NameOrder {
        bool operator()(StringView a, StringView b) const;
    };

    explicit HeadlessRuntime(Desktop& desktop);

    void DoEvents() override;
    bool hasPendingEvents() const override;
    /// Notes the box and counts as a yield: runs `whileBoxIsOpen`, then the loop, then the box is dismissed.
    /// A box inside too many others is noted and does nothing else.
    void messageBox(StringView text, Long style, StringView title) override;
    const ComponentInfo& component() const override { return componentInfo; }
    Long currentProcessId() const override { return processId; }
    std::optional<std::vector<ProcessEntry>> processes() const override { return processList; }
    std::optional<StoredSetting>
    storedSetting(std::uint32_t hive, StringView key, StringView name) const override;
    /// `clock`, and the virtual time that has passed.
    Date now() const override;
    /// Code page 1252.
    void toAnsi(StringView text, std::span<Byte> bytes) const override;
    void fromAnsi(std::span<const Byte> bytes, std::span<char16_t> text) const override;
    std::vector<Byte> imageOfPicture(const Picture& picture) const override;
    PictureRef pictureOfImage(std::span<const Byte> image) const override;
    void findClose(Long handle) override { closedSearches.push_back(handle); }

    /// Made by one of `factories`.
    ObjectRef createObject(StringView programId) override;
    ObjectRef applicationObject() override { return application; }
    /// Noted, not heard.
    void playSound(StringView file, Long flags) override { sounds.push_back({String(file), flags}); }
    SystemVersion systemVersion() const override { return version; }
    Long currentThemeName(std::span<char16_t> themeFile,
                          std::span<char16_t> colorName,
                          std::span<char16_t> sizeName) const override;
    /// The buttons of the desktop's mouse; no other key is ever down.
    Integer asyncKeyState(Long virtualKey) override;
    /// Noted, not opened.
    void shellExecute(const ShellRequest& request) override { opened.push_back(request); }
    Single twipsPerPixelY() const override { return 15; }

    /// What conversions on this thread follow from now on, as long as the runtime lives; at first they are
    /// invariant. `locale` must outlive the runtime.
    void letLocale(const Locale& locale) { locale_.emplace(locale); }

    /// Of the current user.
    void letSetting(StringView key, StringView name, StringView text);
    void letSetting(std::uint32_t hive, StringView key, StringView name, StoredSetting value);

    std::vector<Box> boxes;               ///< all that were shown, in order
    std::function<void()> whileBoxIsOpen; ///< host code, with the box as the last of `boxes`
    /// At first the project's name and version, and the folder of the running program.
    ComponentInfo componentInfo;
    /// The program of this machine that runs the desktop, under a number that is the same in every run.
    static constexpr Long processId = 4711;
    std::optional<std::vector<ProcessEntry>> processList;
    Date clock{36526.5}; ///< the moment at which the virtual clock started; at first noon of 2000-01-01
    /// By program identifier.
    std::map<String, std::function<ObjectRef()>, NameOrder> factories;
    ObjectRef application;
    std::vector<Sound> sounds;        ///< all that were to be played, in order
    std::vector<ShellRequest> opened; ///< all that was to be opened, in order
    SystemVersion version{2, 5, 1};
    std::optional<Theme> theme;       ///< none: the classic look
    std::vector<Long> closedSearches; ///< the handles that `findClose` got, in order

  private:
    struct SettingOrder {
        using Key = std::tuple<std::uint32_t, String, String>;
        bool operator()(const Key& a, const Key& b) const;
    };

    Desktop& desktop_;
    std::optional<UsingLocale> locale_;
    std::map<SettingOrder::Key, StoredSetting, SettingOrder> settings_; ///< by hive, key and name
};

} // namespace lumtex
