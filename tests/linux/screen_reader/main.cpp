/// A program that starts another one and asks over AT-SPI what the first table in its window says of itself.
///
///   screen_reader PROGRAM STEP...
///
/// A path is numbers of children, from 0: 4/1 is the second child of the fifth child of the table. Steps are
///
///   tree                      everything, a line each: role, name, description, states, actions
///   press PATH                does the first action
///   focus PATH
///   edit PATH TEXT            sets the whole text
///   text PATH                 prints it
///   cell ROW COLUMN           from 0, by the table itself
///   await EVENT NAME          until an element of this name, - for none, tells of that; printed with its
///   number
///
/// Ends with 1 and a line where a step fails, or waits for ten seconds in vain.
#include <array>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <functional>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <atspi/atspi.h>

namespace {

constexpr gint64 enough = 10 * G_TIME_SPAN_SECOND;

struct Freed {
    void operator()(gpointer object) const { g_object_unref(object); }
};
using Accessible = std::unique_ptr<AtspiAccessible, Freed>;

[[noreturn]] void fail(const std::string& what) {
    std::cout << "failed: " << what << std::endl;
    std::_Exit(1);
}

/// What a call of the library gave, and the end of the program where it failed.
template <class Call>
auto asked(const char* what, Call call) {
    GError* error = nullptr;
    auto result = call(&error);
    if (error != nullptr)
        fail(std::string(what) + ": " + error->message);
    return result;
}

std::string taken(gchar* text) {
    std::string result = text != nullptr ? text : "";
    g_free(text);
    return result;
}

std::string nameOf(AtspiAccessible* element) {
    return taken(asked("name", [&](GError** error) { return atspi_accessible_get_name(element, error); }));
}
std::string roleOf(AtspiAccessible* element) {
    return taken(
        asked("role", [&](GError** error) { return atspi_accessible_get_role_name(element, error); }));
}
int countOf(AtspiAccessible* element) {
    return asked("count", [&](GError** error) { return atspi_accessible_get_child_count(element, error); });
}
Accessible childOf(AtspiAccessible* element, int number) {
    return Accessible(asked("child", [&](GError** error) {
        return atspi_accessible_get_child_at_index(element, number, error);
    }));
}

std::string statesOf(AtspiAccessible* element) {
    constexpr std::array<std::pair<AtspiStateType, const char*>, 6> known{{{ATSPI_STATE_FOCUSED, "focused"},
                                                                           {ATSPI_STATE_SELECTED, "selected"},
                                                                           {ATSPI_STATE_CHECKED, "checked"},
                                                                           {ATSPI_STATE_EDITABLE, "editable"},
                                                                           {ATSPI_STATE_SHOWING, "showing"},
                                                                           {ATSPI_STATE_ENABLED, "enabled"}}};
    AtspiStateSet* states = atspi_accessible_get_state_set(element);
    std::string words;
    for (const auto& [state, word] : known)
        if (atspi_state_set_contains(states, state) != FALSE)
            words += std::string(" ") + word;
    g_object_unref(states);
    return words;
}

std::string actionsOf(AtspiAccessible* element) {
    AtspiAction* action = atspi_accessible_get_action_iface(element);
    if (action == nullptr)
        return {};
    std::string words;
    const int count =
        asked("actions", [&](GError** error) { return atspi_action_get_n_actions(action, error); });
    for (int i = 0; i < count; ++i)
        words +=
            " [" +
            taken(asked("action",
                        [&](GError** error) { return atspi_action_get_action_name(action, i, error); })) +
            "]";
    g_object_unref(action);
    return words;
}

void printTree(AtspiAccessible* element, const std::string& indent) {
    const std::string description = taken(asked(
        "description", [&](GError** error) { return atspi_accessible_get_description(element, error); }));
    std::cout << indent << roleOf(element) << " \"" << nameOf(element) << "\""
              << (description.empty() ? "" : " (" + description + ")") << statesOf(element)
              << actionsOf(element) << "\n";
    for (int i = 0; i < countOf(element); ++i)
        printTree(childOf(element, i).get(), indent + " ");
}

struct Heard {
    std::string type;
    std::string name;
    int detail = 0;
};
std::deque<Heard> heard;

void hear(AtspiEvent* event, void* /*data*/) {
    // Whoever has gone meanwhile has no name.
    heard.push_back({event->type, taken(atspi_accessible_get_name(event->source, nullptr)), event->detail1});
    g_boxed_free(ATSPI_TYPE_EVENT, event);
}

/// Lets events through until `isDone`, or time is up.
bool until(const std::function<bool()>& isDone, gint64 time = enough) {
    const gint64 end = g_get_monotonic_time() + time;
    // Something wakes the loop also when nothing is told.
    const guint pulse = g_timeout_add(
        20, [](gpointer) -> gboolean { return TRUE; }, nullptr);
    bool done = isDone();
    while (!done && g_get_monotonic_time() < end) {
        g_main_context_iteration(nullptr, TRUE);
        done = isDone();
    }
    g_source_remove(pulse);
    return done;
}

/// The first of these, once it is there; it and all before it are taken.
std::optional<Heard> takeHeard(const std::string& type, const std::string& name) {
    while (!heard.empty()) {
        const Heard one = heard.front();
        heard.pop_front();
        if (one.type.rfind(type, 0) == 0 && one.name == name)
            return one;
    }
    return std::nullopt;
}

void await(const std::string& type, const std::string& name) {
    std::optional<Heard> found;
    if (!until([&] { return (found = takeHeard(type, name)).has_value(); }))
        fail("never heard: " + type + " " + name);
    std::cout << found->type << " " << found->detail << " " << found->name << "\n";
}

/// The table in the window of the program; null while there is none.
Accessible findTable(GPid process) {
    const Accessible desktop(atspi_get_desktop(0));
    for (int i = 0; i < atspi_accessible_get_child_count(desktop.get(), nullptr); ++i) {
        const Accessible program(atspi_accessible_get_child_at_index(desktop.get(), i, nullptr));
        if (program == nullptr ||
            atspi_accessible_get_process_id(program.get(), nullptr) != static_cast<guint>(process))
            continue;
        const Accessible window(atspi_accessible_get_child_at_index(program.get(), 0, nullptr));
        if (window != nullptr)
            return Accessible(atspi_accessible_get_child_at_index(window.get(), 0, nullptr));
    }
    return nullptr;
}

Accessible elementAt(AtspiAccessible* table, const std::string& path) {
    Accessible element(static_cast<AtspiAccessible*>(g_object_ref(table)));
    for (std::size_t at = 0; at != std::string::npos && at < path.size();) {
        element = childOf(element.get(), std::atoi(path.c_str() + at));
        if (element == nullptr)
            fail("nothing at " + path);
        at = path.find('/', at);
        at += at != std::string::npos ? 1 : 0;
    }
    return element;
}

void focus(AtspiAccessible* element) {
    AtspiComponent* component = atspi_accessible_get_component_iface(element);
    asked("focus", [&](GError** error) { return atspi_component_grab_focus(component, error); });
    g_object_unref(component);
}

/// A program learns some time after its start that events are listened to.
void waitForListening(AtspiAccessible* table) {
    const auto isHeard = [&] {
        focus(childOf(table, 2).get());
        focus(childOf(table, 0).get());
        const auto comes = [] { return takeHeard("object:state-changed:focused", "Lisbon").has_value(); };
        return until(comes, G_TIME_SPAN_SECOND / 5);
    };
    if (!until(isHeard))
        fail("no event is ever heard");
}

void press(AtspiAccessible* element) {
    AtspiAction* action = atspi_accessible_get_action_iface(element);
    if (action == nullptr)
        fail("no action");
    asked("press", [&](GError** error) { return atspi_action_do_action(action, 0, error); });
    g_object_unref(action);
}

void edit(AtspiAccessible* element, const std::string& value) {
    AtspiEditableText* text = atspi_accessible_get_editable_text_iface(element);
    if (text == nullptr)
        fail("no text to edit");
    asked("edit",
          [&](GError** error) { return atspi_editable_text_set_text_contents(text, value.c_str(), error); });
    g_object_unref(text);
}

std::string textOf(AtspiAccessible* element) {
    AtspiText* text = atspi_accessible_get_text_iface(element);
    if (text == nullptr)
        fail("no text");
    const int count =
        asked("length", [&](GError** error) { return atspi_text_get_character_count(text, error); });
    std::string all =
        taken(asked("text", [&](GError** error) { return atspi_text_get_text(text, 0, count, error); }));
    g_object_unref(text);
    return all;
}

void printCell(AtspiAccessible* table, int row, int column) {
    AtspiTable* cells = atspi_accessible_get_table_iface(table);
    if (cells == nullptr)
        fail("no table");
    const Accessible cell(asked(
        "cell", [&](GError** error) { return atspi_table_get_accessible_at(cells, row, column, error); }));
    const int rows = asked("rows", [&](GError** error) { return atspi_table_get_n_rows(cells, error); });
    std::cout << roleOf(cell.get()) << " \"" << nameOf(cell.get()) << "\" of " << rows << " rows\n";
    g_object_unref(cells);
}

void run(AtspiAccessible* table, std::deque<std::string> words) {
    const auto next = [&] {
        if (words.empty())
            fail("a word is missing");
        std::string word = words.front();
        words.pop_front();
        return word;
    };
    while (!words.empty()) {
        const std::string verb = next();
        if (verb == "tree") {
            printTree(table, "");
        } else if (verb == "press") {
            press(elementAt(table, next()).get());
        } else if (verb == "focus") {
            focus(elementAt(table, next()).get());
        } else if (verb == "edit") {
            const std::string path = next();
            edit(elementAt(table, path).get(), next());
        } else if (verb == "text") {
            std::cout << textOf(elementAt(table, next()).get()) << "\n";
        } else if (verb == "cell") {
            const int row = std::stoi(next());
            printCell(table, row, std::stoi(next()));
        } else if (verb == "await") {
            const std::string type = next();
            const std::string name = next();
            await(type, name == "-" ? "" : name);
        } else {
            fail("no step: " + verb);
        }
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2)
        fail("no program");
    if (atspi_init() != 0)
        fail("no bus");
    AtspiEventListener* listener = atspi_event_listener_new(hear, nullptr, nullptr);
    asked("listen",
          [&](GError** error) { return atspi_event_listener_register(listener, "object:", error); });

    std::array<gchar*, 2> words{argv[1], nullptr};
    GPid process = 0;
    gint input = -1;
    asked("start", [&](GError** error) {
        return g_spawn_async_with_pipes(nullptr,
                                        words.data(),
                                        nullptr,
                                        G_SPAWN_DO_NOT_REAP_CHILD,
                                        nullptr,
                                        nullptr,
                                        &process,
                                        &input,
                                        nullptr,
                                        nullptr,
                                        error);
    });
    // The program ends as this one does: its input is a pipe from here.
    Accessible table;
    if (!until([&] { return (table = findTable(process)) != nullptr; }))
        fail("no table");
    waitForListening(table.get());
    run(table.get(), {argv + 2, argv + argc});
    std::cout << std::flush;
    std::_Exit(0);
}
