/// \file
/// What the control asks of the system around it, apart from windows and drawing.
#pragma once

#include "platform/binary_file.h"
#include "values/references/object.h"
#include "values/types.h"
#include "values/variant.h"

#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace lumtex {

/// The component as its application object describes it.
struct ComponentInfo {
    String exeName; ///< file name without path and extension
    String folder;  ///< where the component's file lies, without a closing separator
    Long major = 0;
    Long minor = 0;
    Long revision = 0;
};

/// A running process, as a listing of all processes names it.
struct ProcessEntry {
    Long id = 0;
    String fileName; ///< of its program, with or without a path; ends at the first zero
};

/// A value of the settings store, as it lies there.
struct StoredSetting {
    enum Type : Long { text = 1, textWithVariables = 2, number = 4 };

    Long type = text;
    /// Text in UTF-8, usually with a closing zero; a number as four bytes, the lowest first.
    std::vector<Byte> data;
};

/// The part of the settings store that belongs to the user; the platform's own number for it.
constexpr std::uint32_t currentUserHive = 0x80000001U;

/// The system under the program. One of another family says 2, 5, 1 and maps its look onto the theme names.
struct SystemVersion {
    Long platformId = 0; ///< 2 for the family that has themes
    Long major = 0;
    Long minor = 0;
};

/// Something to be opened by whatever the user's desktop opens it with.
struct ShellRequest {
    Long window = 0; ///< the window on whose behalf
    String verb;
    String file; ///< a program, a document or a web address
    String parameters;
    String folder; ///< the working directory
    Long show = 1; ///< 1 as usual, 3 maximised
};

enum SoundFlags : Long {
    soundAsync = 1,     ///< return at once
    soundNoDefault = 2, ///< silence if the file cannot be played
};

enum MessageBoxStyle : Long {
    boxPlain = 0,
    boxCritical = 16,
};

/// One object per world, replaceable in tests. Lives longer than every control of its world.
class Runtime {
  public:
    Runtime() = default;
    Runtime(const Runtime&) = delete;
    Runtime& operator=(const Runtime&) = delete;
    virtual ~Runtime() = default;

    /// Lets the host's message loop run until its queue is empty; events, timers and paints may come in here.
    virtual void DoEvents() = 0;
    /// False if `DoEvents` would find nothing to do, so that a long walk need not call it; see
    /// `QueueWatch`. A runtime that cannot tell says True.
    virtual bool hasPendingEvents() const { return true; }

    /// Shows a box with the button OK and returns once it was dismissed. Events may come in meanwhile.
    virtual void messageBox(StringView text, Long style, StringView title) = 0;

    virtual const ComponentInfo& component() const = 0;

    virtual Long currentProcessId() const = 0;
    /// All processes, or as many as the world knows, its own among them; none if they cannot be listed.
    virtual std::optional<std::vector<ProcessEntry>> processes() const = 0;
    /// `file`, completed from the current folder where it has no full path of its own.
    virtual String fullPathName(StringView file) const = 0;

    /// The value `name` under `key` of the settings store, none if there is none. `key` separates its
    /// parts with "\".
    virtual std::optional<StoredSetting>
    storedSetting(std::uint32_t hive, StringView key, StringView name) const = 0;
    /// The same for a key that the user may read and perhaps not write.
    virtual std::optional<StoredSetting>
    readOnlySetting(std::uint32_t hive, StringView key, StringView name) const {
        return storedSetting(hive, key, name);
    }

    /// Today's date and the time of the day.
    virtual Date now() const = 0;

    // Files of text in the platform's encoding. These throw RuntimeError 76 if the folder does not exist,
    // 75 if the file cannot be opened for another reason.

    /// The whole file. Throws 53 if there is none.
    virtual String readFile(StringView path) const = 0;
    /// Creates a file without content, or empties the one that is there.
    virtual void createFile(StringView path) = 0;
    /// Creates the file if need be. Throws 57 for text that could not be written.
    virtual void appendToFile(StringView path, StringView text) = 0;

    // Files of bytes. Only plain files are read, written or deleted: for a folder, a device and the like, and
    // for whatever else stands in the way, these throw RuntimeError 75, and 76 if the folder does not
    // exist.

    /// The file stands under its name after `OutputFile::close`; before that it should not, so that nobody
    /// reads half of it. A file that has the name then is replaced.
    virtual std::unique_ptr<OutputFile> openForBinaryWriting(StringView path) = 0;
    /// Throws 53 if there is no file.
    virtual std::unique_ptr<InputFile> openForBinaryReading(StringView path) = 0;
    /// `path` is a name, not a pattern. Throws 53 if there is no file.
    virtual void deleteFile(StringView path) = 0;

    // Text in the system's ANSI code page, one byte for each UTF-16 code unit. `bytes` and `text` are of the
    // same length. What one byte cannot say becomes "?".

    virtual void toAnsi(StringView text, std::span<Byte> bytes) const = 0;
    virtual void fromAnsi(std::span<const Byte> bytes, std::span<char16_t> text) const = 0;

    // Pictures as file images: all bytes of a bitmap file or of an icon file, by the picture's kind.

    /// Throws RuntimeError 481 for a picture without pixels, 7 for one too large.
    virtual std::vector<Byte> imageOfPicture(const Picture& picture) const = 0;
    /// The other way, with the same kind and pixels. Throws 481 for bytes that are no such image, and for one
    /// that declares more than eight pixels to a byte, which no uncompressed image has.
    virtual PictureRef pictureOfImage(std::span<const Byte> image) const = 0;

    /// Looks for a file or folder; the last part of `pattern` may hold "*" and "?". Returns a handle that the
    /// caller closes if something was found, otherwise -1. Closing -1 does nothing.
    virtual Long findFirstFile(StringView pattern) = 0;
    virtual void findClose(Long handle) = 0;

    /// Creates an automation object by its program identifier; throws RuntimeError 429 if there is none.
    virtual ObjectRef createObject(StringView programId) = 0;
    /// The component's application object, as handed to an error handler; may be none.
    virtual ObjectRef applicationObject() = 0;

    // The user's desktop. None of these throws, and what it cannot do it leaves undone.

    /// Plays a sound file by the bits of `SoundFlags`.
    virtual void playSound(StringView file, Long flags) = 0;
    virtual SystemVersion systemVersion() const = 0;
    /// The names of the active theme: its file, colour scheme and size, as zero-terminated text in the
    /// buffers. Returns 0, or anything else and leaves the buffers alone where no theme is active.
    virtual Long currentThemeName(std::span<char16_t> themeFile,
                                  std::span<char16_t> colorName,
                                  std::span<char16_t> sizeName) const = 0;
    /// Is a key down now (the highest bit), was it pressed since the last call (the lowest)? Mouse buttons
    /// are the keys 1 left, 2 right and 4 middle; a world may know these alone.
    virtual Integer asyncKeyState(Long virtualKey) = 0;
    virtual void shellExecute(const ShellRequest& request) = 0;

    /// 15 on a screen of 96 pixels to the inch, 7.5 on one of 192.
    virtual Single twipsPerPixelY() const = 0;
};

} // namespace lumtex
