/// \file
/// The system around a simulated desktop: everything is kept in memory and can be looked at.
#pragma once

#include "platform/runtime.h"

#include <functional>
#include <map>
#include <vector>

namespace lumtex {

class Desktop;

/// Dates and times are written in the invariant forms, "2000-01-31" and "23:59:58".
class HeadlessRuntime final : public Runtime {
  public:
    struct Box {
        String text;
        Long style;
        String title;
    };

    explicit HeadlessRuntime(Desktop& desktop);

    void DoEvents() override;
    /// Notes the box, then runs `whileBoxIsOpen` as the user's answer to it.
    void messageBox(StringView text, Long style, StringView title) override;
    const ComponentInfo& component() const override { return componentInfo; }
    String currentExePath() const override;
    String setting(StringView key, StringView name) const override;
    Date now() const override { return clock; }
    String dateText(Date date) const override;
    String timeText(Date date) const override;
    std::optional<Double> numberFromText(StringView text) const override;
    std::optional<Date> dateFromText(StringView text) const override;
    /// UTF-8; "\" in the path separates folders.
    void appendToFile(StringView path, StringView text) override;
    ObjectRef createObject(StringView programId) override;
    ObjectRef applicationObject() override { return nullptr; }
    Long twipsPerPixelX() const override { return 15; }
    Long twipsPerPixelY() const override { return 15; }

    void letSetting(StringView key, StringView name, StringView text);

    std::vector<Box> boxes;
    std::function<void()> whileBoxIsOpen;
    ComponentInfo componentInfo;
    Date clock{36526.5};                                    ///< noon of the first day of 2000
    std::map<String, std::function<ObjectRef()>> factories; ///< by program identifier

  private:
    Desktop& desktop_;
    std::map<String, String> settings_; ///< by key and name, lower case
};

} // namespace lumtex
