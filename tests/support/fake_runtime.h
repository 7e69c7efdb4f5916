/// \file
/// A Runtime for reports, that remembers what it was asked for and fails if a test says so.
#pragma once

#include "platform/runtime.h"
#include "values/runtime_error.h"

#include <functional>
#include <map>
#include <set>
#include <stdexcept>
#include <vector>

namespace lumtex {

/// Files are texts in a map. Everything a test sets or reads is a plain member.
class FakeFiles final : public Files {
  public:
    std::map<String, String> texts;
    /// Folders that exist, without a closing "\".
    std::set<String> folders;
    String currentFolder = u"C:\\Programs";
    /// Runs before a file is written; throws if writing shall fail.
    std::function<void(StringView path)> onAppend = [](StringView /*path*/) {};

    void appendToFile(StringView path, StringView text) override {
        onAppend(path);
        demandFolderOf(path);
        texts[String(path)] += text;
    }
    String readFile(StringView path) const override {
        const auto found = texts.find(String(path));
        if (found == texts.end())
            throw RuntimeError(ErrorNumber::fileNotFound);
        return found->second;
    }
    String fullPathName(StringView file) const override { return currentFolder + u"\\" + String(file); }

    Long findFirstFile(StringView pattern) override { return texts.contains(String(pattern)) ? 7 : -1; }
    void findClose(Long /*handle*/) override {}

    // Neither reports nor helper calls that are tested with this do more with files.
    void createFile(StringView /*path*/) override { throw RuntimeError(ErrorNumber::pathFileAccess); }
    std::unique_ptr<OutputFile> openForBinaryWriting(StringView /*path*/) override {
        throw RuntimeError(ErrorNumber::pathFileAccess);
    }
    std::unique_ptr<InputFile> openForBinaryReading(StringView /*path*/) override {
        throw RuntimeError(ErrorNumber::pathFileAccess);
    }
    void deleteFile(StringView /*path*/) override { throw RuntimeError(ErrorNumber::pathFileAccess); }

  private:
    void demandFolderOf(StringView path) const {
        const std::size_t folderEnd = path.find_last_of(u'\\');
        if (folderEnd == StringView::npos || !folders.contains(String(path.substr(0, folderEnd))))
            throw RuntimeError(ErrorNumber::pathNotFound);
    }
};

/// The program that a test says, at first one with two processes around it.
class FakeProgram final : public Program {
  public:
    ComponentInfo info{u"LumtexListView", u"C:\\Components", 1, 2, 34};
    std::optional<std::vector<ProcessEntry>> processList{{{4, u"System"}, {77, u"Host.exe"}}};

    const ComponentInfo& component() const override { return info; }
    Long currentProcessId() const override { return 77; }
    std::optional<std::vector<ProcessEntry>> processes() const override { return processList; }
};

/// Nothing of the system around is touched, and the clock stands still. A report asks for everything but the
/// pictures and the user's desktop.
class FakeRuntime final : public Runtime, EventQueue, Settings, SystemLocale, Automation {
  public:
    struct Box {
        String text;
        BoxStyle style;
        String title;
    };

    FakeRuntime() {
        fileSystem.onAppend = [this](StringView path) {
            journal.push_back(u"append " + String(path));
            run(onAppend);
        };
    }

    /// What was asked for, in order, one line for each outlet of a report.
    std::vector<String> journal;
    std::vector<Box> boxes;
    /// Runs while a box is open, as events of the host would.
    std::function<void()> onMessageBox = [] {};
    /// Runs before a file is written; throws if writing shall fail.
    std::function<void()> onAppend = [] {};
    /// By key, "\" and name.
    std::map<String, String> storedTexts;
    /// By program identifier; what is not in here cannot be created.
    std::map<String, std::function<ObjectRef()>> factories;
    ObjectRef application;
    FakeFiles fileSystem;
    FakeProgram process;

    EventQueue& queue() override { return *this; }
    Files& files() override { return fileSystem; }
    Settings& settings() override { return *this; }
    SystemLocale& locale() override { return *this; }
    PictureImages& pictures() override { throw std::logic_error("no report asks for pictures"); }
    Automation& automation() override { return *this; }
    UserDesktop& desktop() override { throw std::logic_error("no report asks for the desktop"); }
    Program& program() override { return process; }

  private:
    void DoEvents() override {}
    void messageBox(StringView text, BoxStyle style, StringView title) override {
        journal.push_back(u"box");
        boxes.push_back({String(text), style, String(title)});
        run(onMessageBox);
    }

    std::optional<String> text(StringView key, StringView name) const override {
        const auto found = storedTexts.find(String(key) + u"\\" + String(name));
        return found != storedTexts.end() ? std::optional(found->second) : std::nullopt;
    }

    Date now() const override { return {45351.5}; }
    words::Language language() const override { return words::Language::english; }
    void toAnsi(StringView /*text*/, std::span<Byte> /*bytes*/) const override {}
    void fromAnsi(std::span<const Byte> /*bytes*/, std::span<char16_t> /*text*/) const override {}

    ObjectRef createObject(StringView programId) override {
        journal.push_back(u"create " + String(programId));
        const auto found = factories.find(String(programId));
        if (found == factories.end())
            throw RuntimeError(ErrorNumber::cannotCreateObject);
        return found->second();
    }
    ObjectRef applicationObject() override { return application; }

    /// A copy, since what runs may put something else in its place.
    static void run(std::function<void()> hostCode) { hostCode(); }
};

} // namespace lumtex
