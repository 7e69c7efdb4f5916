/// \file
/// The system around a simulated desktop: everything is kept in memory and can be looked at.
#pragma once

#include "platform/runtime.h"

#include <functional>
#include <map>
#include <utility>
#include <vector>

namespace lumtex {

class Desktop;

/// What would depend on machine, user or day is fixed here, or set by a test.
class HeadlessRuntime final : public Runtime {
  public:
    struct Box {
        String text;
        Long style = boxPlain;
        String title;
    };

    /// Names without regard to case.
    struct NameOrder {
        bool operator()(StringView a, StringView b) const;
    };

    explicit HeadlessRuntime(Desktop& desktop);

    void DoEvents() override;
    /// Notes the box and counts as a yield: runs `whileBoxIsOpen`, then the loop, then the box is dismissed.
    /// A box inside too many others is noted and does nothing else.
    void messageBox(StringView text, Long style, StringView title) override;
    const ComponentInfo& component() const override { return componentInfo; }
    String currentExePath() const override;
    String setting(StringView key, StringView name) const override;
    /// `clock`, and the virtual time that has passed.
    Date now() const override;
    /// "2000-01-31", under any settings.
    String dateText(Date date) const override;
    /// "23:59:58", under any settings.
    String timeText(Date date) const override;
    /// The invariant rules.
    std::optional<Double> numberFromText(StringView text) const override;
    std::optional<Date> dateFromText(StringView text) const override;
    /// UTF-8, line ends as given; "\" in the path separates folders. Throws RuntimeError 75 for a file that
    /// cannot be opened in a folder that exists, and 57 for text that could not be written.
    void appendToFile(StringView path, StringView text) override;
    /// Made by one of `factories`.
    ObjectRef createObject(StringView programId) override;
    ObjectRef applicationObject() override { return application; }
    Long twipsPerPixelX() const override { return 15; }
    Long twipsPerPixelY() const override { return 15; }

    void letSetting(StringView key, StringView name, StringView text);

    std::vector<Box> boxes;               ///< all that were shown, in order
    std::function<void()> whileBoxIsOpen; ///< host code, with the box as the last of `boxes`
    /// At first the project's name and version, and the folder of the running program.
    ComponentInfo componentInfo;
    Date clock{36526.5}; ///< the moment at which the virtual clock started; at first noon of 2000-01-01
    /// By program identifier.
    std::map<String, std::function<ObjectRef()>, NameOrder> factories;
    ObjectRef application;

  private:
    struct SettingOrder {
        using Key = std::pair<String, String>;
        bool operator()(const Key& a, const Key& b) const;
    };

    Desktop& desktop_;
    std::map<SettingOrder::Key, String, SettingOrder> settings_; ///< by key and name
};

} // namespace lumtex
