#include "player.h"

#include "list_fixture.h"
#include "picture_check.h"
#include "values/runtime_error.h"
#include "values/text.h"
#include "worlds/headless/keyboard.h"

#include <map>
#include <optional>
#include <stdexcept>

namespace lumtex::testing {

namespace {

using Words = std::vector<std::string>;

const std::map<std::string, MouseButton> buttons = {
    {"left", leftButton}, {"right", rightButton}, {"middle", middleButton}};
const std::map<std::string, Integer> masks = {
    {"shift", keys::shiftMask}, {"control", keys::controlMask}, {"alt", keys::altMask}};
const std::map<std::string, Integer> keyCodes = {{"backspace", keys::backspace},
                                                 {"tab", keys::tab},
                                                 {"enter", keys::enter},
                                                 {"shift", keys::shift},
                                                 {"control", keys::control},
                                                 {"alt", keys::alt},
                                                 {"escape", keys::escape},
                                                 {"space", keys::space},
                                                 {"end", keys::end},
                                                 {"home", keys::home},
                                                 {"left", keys::left},
                                                 {"up", keys::up},
                                                 {"right", keys::right},
                                                 {"down", keys::down},
                                                 {"delete", keys::del}};

class Player {
  public:
    explicit Player(Stage& stage) : stage_(stage), list_(stage.list()), inside_(stage.list()) {}

    void perform(const Words& words) {
        const auto verb = verbs.find(words.at(0));
        if (verb == verbs.end())
            throw std::runtime_error("unknown verb " + words[0]);
        (this->*verb->second)(Words(words.begin() + 1, words.end()));
    }

    std::vector<Bitmap> takeFrames() { return std::move(frames_); }

  private:
    using Verb = void (Player::*)(const Words&);
    static const std::map<std::string, Verb> verbs;

    struct Gesture {
        std::optional<std::pair<Single, Single>> point;
        MouseButton button = leftButton;
        Integer shift = 0;
    };

    void note(const std::string& line) { stage_.log().push_back(line); }

    static Long number(const std::string& word) { return valueOf(word).toLong(); }

    // Host

    static std::vector<Variant> values(const Words& words, std::size_t from, std::size_t to) {
        std::vector<Variant> all;
        for (std::size_t i = from; i < to; ++i)
            all.push_back(valueOf(words[i]));
        return all;
    }

    template <class Access>
    void guarded(Access access) {
        try {
            access();
        } catch (const RuntimeError& error) {
            note("! " + std::to_string(error.number()));
        }
    }

    void call(const Words& words) {
        auto arguments = values(words, 1, words.size());
        guarded([&] {
            const Variant result = byName_.call(fromUtf8(words.at(0)), arguments);
            if (!result.isEmpty())
                note("-> " + wordFor(result));
        });
    }

    void get(const Words& words) {
        auto arguments = values(words, 1, words.size());
        guarded([&] { note("-> " + wordFor(byName_.get(fromUtf8(words.at(0)), arguments))); });
    }

    static std::size_t equalsSign(const Words& words) {
        const auto sign = std::find(words.begin(), words.end(), "=");
        if (sign == words.end() || sign + 1 == words.end())
            throw std::runtime_error("nothing is assigned");
        return static_cast<std::size_t>(sign - words.begin());
    }

    void let(const Words& words) {
        const std::size_t sign = equalsSign(words);
        auto arguments = values(words, 1, sign);
        guarded([&] { byName_.let(fromUtf8(words.at(0)), arguments, valueOf(words[sign + 1])); });
    }

    static Variant reference(const Words& words) {
        if (words.at(0) == "picture") {
            Bitmap bitmap(number(words.at(1)), number(words.at(2)));
            const auto color = 0xFF000000U | static_cast<std::uint32_t>(number(words.at(3)));
            std::fill(bitmap.pixels.begin(), bitmap.pixels.end(), color);
            return PictureRef(std::make_shared<BitmapPicture>(std::move(bitmap)));
        }
        if (words[0] == "font")
            return std::make_shared<Font>(
                FontSpec{.Name = valueOf(words.at(1)).toText(), .Size = valueOf(words.at(2)).toSingle()});
        return valueOf(words[0]);
    }

    void set(const Words& words) {
        const std::size_t sign = equalsSign(words);
        auto arguments = values(words, 1, sign);
        const Variant value =
            reference(Words(words.begin() + static_cast<std::ptrdiff_t>(sign) + 1, words.end()));
        guarded([&] { byName_.set(fromUtf8(words.at(0)), arguments, value); });
    }

    void columns(const Words& words) {
        for (const std::string& width : words)
            list_.ColumnsAdd(
                u"", nullptr, nullptr, nullptr, cColumnLeft, static_cast<Single>(number(width) * 15));
    }

    void rows(const Words& words) {
        for (Long row = 1; row <= number(words.at(0)); ++row) {
            std::string texts;
            for (Long column = 0; column < list_.ColumnsCount(); ++column)
                texts +=
                    (column == 0 ? "" : ",") + std::to_string(row) + static_cast<char>('a' + column % 26);
            list_.RowsAdd(Long{-1}, u",", fromUtf8(texts));
        }
    }

    void show(const Words&) {
        std::string selected;
        std::string checked;
        for (std::size_t row = 0; row < inside_.rows().size(); ++row) {
            const std::string name = std::to_string(row + 1);
            if (inside_.rows()[row].Selected)
                selected += (selected.empty() ? "" : ",") + name;
            for (std::size_t cell = 0; cell < inside_.rows()[row].items.count(); ++cell)
                if (inside_.rows()[row].items[cell].Checked())
                    checked += (checked.empty() ? "" : ",") + name + static_cast<char>('a' + cell % 26);
        }
        note("index=" + std::to_string(inside_.properties().ListIndex) +
             " top=" + std::to_string(list_.TopIndex()) + " selected=" + selected + " checked=" + checked +
             (inside_.anyEditor().Visible() ? " editing=" + wordFor(inside_.anyEditor().Text()) : ""));
    }

    void headers(const Words&) {
        const std::string state = inside_.header();
        note(state.substr(0, state.find(" resizing=")) + (says(state, "resizing=yes") ? " resizing" : "") +
             (stage_.showsGuide() ? " guide" : ""));
    }

    void editor(const Words&) {
        const TextBox& box = inside_.anyEditor();
        const Rect at = box.Visible() ? stage_.editorPlace() : Rect{};
        note(box.Visible() ? "editor " + std::to_string(at.Left) + " " + std::to_string(at.Top) + " " +
                                 std::to_string(at.Right - at.Left) + " x " +
                                 std::to_string(at.Bottom - at.Top) + " " + wordFor(box.Text())
                           : "no editor");
    }

    void texts(const Words& words) {
        std::string all;
        for (Long row = 1; row <= list_.RowsCount(); ++row)
            all += (row == 1 ? "" : " ") + toUtf8(list_.ItemText(row, number(words.at(0))));
        note(all);
    }

    void on(const Words& words) {
        const Words action(words.begin() + 1, words.end());
        stage_.onEvent(
            words.at(0), action.empty() ? std::function<void()>([] {}) : [this, action] { perform(action); });
    }

    void yield(const Words& words) {
        stage_.onYield([this, words] { perform(words); });
    }

    void cancel(const Words& words) { stage_.cancelChecks(valueOf(words.at(0)).toBoolean()); }

    // Mouse

    Single columnLeft(Long column) {
        Single left = -static_cast<Single>(inside_.horizontal().Value());
        for (Long before = 1; before < column; ++before)
            left += list_.ColumnWidth(before) / 15;
        return left;
    }
    Single columnWidth(Long column) { return list_.ColumnWidth(column) / 15; }
    Single rowMiddle(Long row) {
        const RowRecord& record = inside_.rows()[static_cast<std::size_t>(row) - 1];
        return record.Top + record.Height / 2;
    }
    Single headerMiddle() { return static_cast<Single>(inside_.ColumnHeight()) / 2; }

    Gesture gesture(const Words& words) {
        Gesture result;
        std::size_t at = 0;
        const auto next = [&] { return number(words.at(at++)); };
        if (at < words.size()) {
            const std::string& place = words[at];
            if (place == "cell" || place == "check") {
                ++at;
                const Long row = next();
                const Long column = next();
                const Single inset = place == "check" ? 8 : columnWidth(column) / 2;
                result.point = {columnLeft(column) + inset, rowMiddle(row)};
            } else if (place == "header") {
                ++at;
                const Long column = next();
                result.point = {columnLeft(column) + columnWidth(column) / 2, headerMiddle()};
            } else if (place == "divider") {
                ++at;
                const Long column = next();
                result.point = {columnLeft(column) + columnWidth(column) - 2, headerMiddle()};
            } else if (place == "away") {
                ++at;
                result.point = {-90.0F, -90.0F};
            } else if (!buttons.contains(place) && !masks.contains(place)) {
                const Long x = next();
                const Long y = next();
                result.point = {static_cast<Single>(x), static_cast<Single>(y)};
            }
        }
        for (; at < words.size(); ++at) {
            if (const auto button = buttons.find(words[at]); button != buttons.end())
                result.button = button->second;
            else
                result.shift = static_cast<Integer>(result.shift | masks.at(words[at]));
        }
        return result;
    }

    Gesture moved(const Words& words) {
        const Gesture result = gesture(words);
        if (result.point)
            stage_.move(result.point->first, result.point->second, result.shift);
        return result;
    }

    void move(const Words& words) { moved(words); }
    void press(const Words& words) {
        const Gesture at = moved(words);
        stage_.press(at.button, at.shift);
    }
    void release(const Words& words) {
        const Gesture at = moved(words);
        stage_.release(at.button, at.shift);
    }
    void click(const Words& words) {
        const Gesture at = moved(words);
        stage_.press(at.button, at.shift);
        stage_.release(at.button, at.shift);
    }
    void doubleclick(const Words& words) {
        const Gesture at = moved(words);
        stage_.press(at.button, at.shift);
        stage_.release(at.button, at.shift);
        stage_.doublePress(at.button, at.shift);
        stage_.release(at.button, at.shift);
    }
    void wheel(const Words& words) {
        stage_.wheel(number(words.at(0)), gesture(Words(words.begin() + 1, words.end())).shift);
    }

    // Keyboard, focus, clock

    static Integer keyCode(const std::string& word) {
        if (const auto key = keyCodes.find(word); key != keyCodes.end())
            return key->second;
        if (word.size() == 1 && word[0] >= 'a' && word[0] <= 'z')
            return static_cast<Integer>(word[0] - 'a' + 'A');
        return valueOf(word).toInteger();
    }

    void key(const Words& words) {
        for (const std::string& word : words) {
            stage_.keyDown(keyCode(word));
            stage_.keyUp(keyCode(word));
        }
    }
    void hold(const Words& words) { stage_.keyDown(keyCode(words.at(0))); }
    void letGo(const Words& words) { stage_.keyUp(keyCode(words.at(0))); }
    void type(const Words& words) { stage_.type(valueOf(words.at(0)).toText()); }
    void focus(const Words& words) { stage_.focus(words.at(0) == "list"); }
    void switchProgram(const Words& words) { stage_.switchProgram(words.at(0) == "away"); }
    void advance(const Words& words) { stage_.advance(std::chrono::milliseconds(number(words.at(0)))); }
    void size(const Words& words) { stage_.resize(number(words.at(0)), number(words.at(1))); }

    void frame(const Words&) { frames_.push_back(stage_.picture()); }

    void picture(const Words& words) {
        EXPECT_TRUE(showsPicture(
            "scenario-" + words.at(0), stage_.picture(), usualPictureFolders(), {words[0].c_str(), 0}));
    }

    Stage& stage_;
    lmListView& list_;
    ListViewInspector inside_;
    automation::CallByName byName_{list_};
    std::vector<Bitmap> frames_;
};

const std::map<std::string, Player::Verb> Player::verbs = {{"size", &Player::size},
                                                           {"columns", &Player::columns},
                                                           {"rows", &Player::rows},
                                                           {"call", &Player::call},
                                                           {"get", &Player::get},
                                                           {"let", &Player::let},
                                                           {"set", &Player::set},
                                                           {"show", &Player::show},
                                                           {"texts", &Player::texts},
                                                           {"on", &Player::on},
                                                           {"yield", &Player::yield},
                                                           {"cancel", &Player::cancel},
                                                           {"move", &Player::move},
                                                           {"press", &Player::press},
                                                           {"release", &Player::release},
                                                           {"click", &Player::click},
                                                           {"doubleclick", &Player::doubleclick},
                                                           {"wheel", &Player::wheel},
                                                           {"key", &Player::key},
                                                           {"hold", &Player::hold},
                                                           {"letgo", &Player::letGo},
                                                           {"type", &Player::type},
                                                           {"headers", &Player::headers},
                                                           {"editor", &Player::editor},
                                                           {"focus", &Player::focus},
                                                           {"switch", &Player::switchProgram},
                                                           {"advance", &Player::advance},
                                                           {"picture", &Player::picture},
                                                           {"frame", &Player::frame}};

} // namespace

Played play(const Script& script, Stage& stage, const std::function<void()>& afterStep) {
    Player player(stage);
    Played played;
    for (const Step& step : script.steps) {
        try {
            player.perform(step.words);
        } catch (const std::exception& failure) {
            throw std::runtime_error("line " + std::to_string(step.line) + ", " + step.text + ": " +
                                     failure.what());
        }
        played.logs.push_back(std::exchange(stage.log(), {}));
        if (afterStep)
            afterStep();
    }
    played.frames = player.takeFrames();
    return played;
}

} // namespace lumtex::testing
