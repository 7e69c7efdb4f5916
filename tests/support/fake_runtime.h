/// \file
/// A Runtime that remembers what it was asked for and fails where a test says so.
#pragma once

#include "platform/runtime.h"
#include "values/runtime_error.h"
#include "values/text.h"
#include "values/windows_1252.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <set>
#include <vector>

namespace lumtex {

/// Everything a test sets or reads is a plain member. Nothing of the system around is touched: the clock
/// stands still, files are texts in a map.
class FakeRuntime : public Runtime {
  public:
    struct Box {
        String text;
        Long style;
        String title;
    };

    /// What was asked for, in order, one line for each outlet of a report.
    std::vector<String> journal;
    std::vector<Box> boxes;
    /// Runs while a box is open, as events of the host would.
    std::function<void()> onMessageBox = [] {};
    std::function<void()> onDoEvents = [] {};
    /// Runs before a file is written; throws where writing shall fail.
    std::function<void()> onAppend = [] {};

    /// By key, "\" and name.
    std::map<String, String> settings;
    /// Folders that exist, without a closing "\".
    std::set<String> folders;
    std::map<String, String> files;
    /// By program identifier; what is not in here cannot be created.
    std::map<String, std::function<ObjectRef()>> factories;

    ComponentInfo info{u"LumtexListView", u"C:\\Components", 1, 2, 34};
    std::optional<std::vector<ProcessEntry>> processList{{{4, u"System"}, {77, u"Host.exe"}}};
    String currentFolder = u"C:\\Programs";
    ObjectRef application;
    Date clock{45351.5};

    void DoEvents() override { run(onDoEvents); }

    void messageBox(StringView text, Long style, StringView title) override {
        journal.push_back(u"box");
        boxes.push_back({String(text), style, String(title)});
        run(onMessageBox);
    }

    const ComponentInfo& component() const override { return info; }
    Long currentProcessId() const override { return 77; }
    std::optional<std::vector<ProcessEntry>> processes() const override { return processList; }
    String fullPathName(StringView file) const override { return currentFolder + u"\\" + String(file); }

    std::optional<StoredSetting>
    storedSetting(std::uint32_t hive, StringView key, StringView name) const override {
        const auto found = settings.find(String(key) + u"\\" + String(name));
        if (hive != currentUserHive || found == settings.end())
            return std::nullopt;
        const std::string utf8 = toUtf8(found->second);
        return StoredSetting{StoredSetting::text, {utf8.begin(), utf8.end()}};
    }

    Date now() const override { return clock; }

    void appendToFile(StringView path, StringView text) override {
        journal.push_back(u"append " + String(path));
        run(onAppend);
        demandFolderOf(path);
        files[String(path)] += text;
    }

    String readFile(StringView path) const override {
        const auto found = files.find(String(path));
        if (found == files.end())
            throw RuntimeError(fileNotFound);
        return found->second;
    }
    void createFile(StringView path) override {
        demandFolderOf(path);
        files[String(path)].clear();
    }
    // No procedure that is tested against this runtime touches files of bytes or pictures.
    std::unique_ptr<OutputFile> openForBinaryWriting(StringView /*path*/) override {
        throw RuntimeError(pathFileAccess);
    }
    std::unique_ptr<InputFile> openForBinaryReading(StringView /*path*/) override {
        throw RuntimeError(pathFileAccess);
    }
    void deleteFile(StringView /*path*/) override { throw RuntimeError(pathFileAccess); }
    void toAnsi(StringView text, std::span<Byte> bytes) const override {
        std::transform(text.begin(), text.end(), bytes.begin(), toWindows1252);
    }
    void fromAnsi(std::span<const Byte> bytes, std::span<char16_t> text) const override {
        std::transform(bytes.begin(), bytes.end(), text.begin(), fromWindows1252);
    }
    std::vector<Byte> imageOfPicture(const Picture& /*picture*/) const override {
        throw RuntimeError(invalidPicture);
    }
    PictureRef pictureOfImage(std::span<const Byte> /*image*/) const override {
        throw RuntimeError(invalidPicture);
    }

    Long findFirstFile(StringView pattern) override {
        journal.push_back(u"find " + String(pattern));
        return files.contains(String(pattern)) ? 7 : -1;
    }
    void findClose(Long handle) override { journal.push_back(u"close " + Variant(handle).toText()); }

    void playSound(StringView /*file*/, Long /*flags*/) override {}
    SystemVersion systemVersion() const override { return {}; }
    Long currentThemeName(std::span<char16_t> /*themeFile*/,
                          std::span<char16_t> /*colorName*/,
                          std::span<char16_t> /*sizeName*/) const override {
        return -1;
    }
    Integer asyncKeyState(Long /*virtualKey*/) override { return 0; }
    void shellExecute(const ShellRequest& /*request*/) override {}

    ObjectRef createObject(StringView programId) override {
        journal.push_back(u"create " + String(programId));
        const auto found = factories.find(String(programId));
        if (found == factories.end())
            throw RuntimeError(cannotCreateObject);
        return found->second();
    }
    ObjectRef applicationObject() override { return application; }

    Single twipsPerPixelY() const override { return 15; }

  private:
    void demandFolderOf(StringView path) const {
        const std::size_t folderEnd = path.find_last_of(u'\\');
        if (folderEnd == StringView::npos || !folders.contains(String(path.substr(0, folderEnd))))
            throw RuntimeError(pathNotFound);
    }

    /// A copy, since what runs may put something else in its place.
    static void run(std::function<void()> hostCode) { hostCode(); }
};

} // namespace lumtex
