/// What a screen reader makes of what the list says, as docs/accessibility.md has it.
#include "folders.h"
#include "platform/keys.h"
#include "spoken_list.h"

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace lumtex::testing {
namespace {

using namespace accessibility;

const std::string opening = "```text\n";
const std::string closing = "```\n";

/// Reads aloud as the common ones do: what has come to the focus with all that it says, what has changed in
/// a word.
class Reader {
  public:
    explicit Reader(AccessibleList& list) : list_(list) {}

    void hear(const Change& change) {
        switch (change.kind) {
        case ChangeKind::focus:
            return say(all(change.element));
        case ChangeKind::selected:
            return; // the focus says so
        case ChangeKind::selectionAdded:
            return say("selected: " + name(change.element));
        case ChangeKind::selectionRemoved:
            return say("not selected: " + name(change.element));
        case ChangeKind::selectionChanged:
            return say("the selection changed");
        case ChangeKind::name:
            return say(role(change.element) + " now " + name(change.element));
        case ChangeKind::state:
            return say(name(change.element) + ", " + words(change.element));
        case ChangeKind::rowsAdded:
            return say(counted(change.count) + " more, " + rows());
        case ChangeKind::rowsRemoved:
            return say(counted(change.count) + " less, " + rows());
        case ChangeKind::sorted:
            return say("column " + name(change.element) + ", " + toUtf8(list_.description(change.element)));
        case ChangeKind::scrolled:
        case ChangeKind::value:
            return say(name(change.element) + " scroll bar " + toUtf8(list_.value(change.element)));
        case ChangeKind::shown:
        case ChangeKind::hidden:
        case ChangeKind::columnsChanged:
        case ChangeKind::contents:
            return;
        }
    }
    void say(const std::string& words) { said += "    " + words + "\n"; }
    std::string all(const Element& element) const {
        std::string text = name(element) + ", " + role(element);
        for (const std::string& more :
             {toUtf8(list_.value(element)), toUtf8(list_.description(element)), words(element)})
            if (!more.empty() && more != name(element))
                text += ", " + more;
        if (element.kind == Kind::row)
            text += ", " + std::to_string(element.row) + " of " + std::to_string(list_.rowCount());
        return text;
    }

    std::string said;

  private:
    std::string name(const Element& element) const { return toUtf8(list_.name(element)); }
    std::string rows() const { return std::to_string(list_.rowCount()) + " in all"; }
    static std::string counted(Long rows) { return std::to_string(rows) + (rows == 1 ? " row" : " rows"); }
    static std::string role(const Element& element) {
        switch (element.kind) {
        case Kind::list:
            return "list";
        case Kind::row:
            return "list item";
        case Kind::cell:
            return "cell";
        case Kind::checkBox:
            return "check box";
        case Kind::header:
            return "column header";
        case Kind::editor:
            return "edit field";
        default:
            return "part";
        }
    }
    std::string words(const Element& element) const {
        const States states = list_.states(element);
        std::string text;
        const auto add = [&](bool condition, const std::string& word) {
            if (condition)
                text += (text.empty() ? "" : ", ") + word;
        };
        add((states & unavailable) != 0, "unavailable");
        add(element.kind == Kind::checkBox, (states & checked) != 0 ? "checked" : "not checked");
        add(element.kind == Kind::row && (states & selected) == 0, "not selected");
        return text;
    }

    AccessibleList& list_;
};

class Situations : public SpokenList {
  protected:
    Situations() {
        addCities();
        host.name = u"Cities";
        list.letMultiSelect(true);
        list.letStyle(cCheckBoxes);
        list.letColumnCheckBoxes(2, true);
        list.letItemAllowEdit(2, 3, true);
        settle();
        spoken.listen([this](const Change& change) { reader.hear(change); });
    }

    void situation(const std::string& title, const std::function<void()>& body) {
        reader.said += std::to_string(++number) + ". " + title + "\n";
        body();
    }

    Reader reader{spoken};
    int number = 0;
};

TEST_F(Situations, AreThoseOfTheDocument) {
    situation("Somebody comes to the list, where no row is the current one.",
              [&] { reader.say(reader.all(spoken.focus())); });
    situation("Down is pressed, and once more.", [&] {
        spoken.takeFocus(theList);
        desktop.key(keys::down);
        desktop.key(keys::down);
    });
    situation("The reader goes through the cells of the row.", [&] {
        for (Element cell = cellElement(2, 1); spoken.exists(cell);
             cell = spoken.navigate(cell, Direction::right))
            reader.say(reader.all(cell));
    });
    situation("The check box in the row is checked.", [&] { spoken.act(checkBoxElement(2, 2)); });
    situation("The last cell is opened, changed and closed with Enter.", [&] {
        spoken.edit(cellElement(2, 3));
        desktop.type(u"Norge");
        desktop.key(keys::enter);
    });
    situation("A row is added to the selection, and taken away again.", [&] {
        spoken.select(rowElement(1), true);
        spoken.select(rowElement(1), false);
    });
    situation("The header of the second column is pressed.", [&] { spoken.act(headerElement(2)); });
    situation("The program adds a row, and removes two.", [&] {
        list.RowsAdd(Long{-1}, u",", u"Porto,868,Portugal");
        list.letAutoRedraw(false);
        list.RowsRemove(4);
        list.RowsRemove(3);
        list.letAutoRedraw(true);
    });
    situation("The program fills the list, and its bar is dragged.", [&] {
        list.letAutoRedraw(false);
        list.letAutoCheckScroll(false);
        spoken.listen(nullptr);
        addRows(98, u"Porto,868,Portugal");
        spoken.listen([this](const Change& change) { reader.hear(change); });
        settle();
        spoken.setRange(verticalBar, 40);
    });
    situation("The program disables a row, which is then come to.", [&] {
        list.letRowEnabled(3, false);
        reader.say(reader.all(rowElement(3)));
    });

    const std::string path = sourceFolder() + "/docs/accessibility.md";
    std::ifstream in(path, std::ios::binary);
    std::stringstream whole;
    whole << in.rdbuf();
    std::string document = whole.str();
    const std::size_t begin = document.find(opening);
    ASSERT_NE(begin, std::string::npos);
    const std::size_t first = begin + opening.size();
    const std::size_t last = document.find(closing, first);
    ASSERT_NE(last, std::string::npos);
    if (std::getenv("LUMTEX_ACCEPT_SITUATIONS") != nullptr &&
        document.substr(first, last - first) != reader.said)
        std::ofstream(path, std::ios::binary) << document.replace(first, last - first, reader.said);
    EXPECT_EQ(whole.str().substr(first, last - first), reader.said)
        << "LUMTEX_ACCEPT_SITUATIONS=1 writes it into the document, to be read by a person";
}

} // namespace
} // namespace lumtex::testing
