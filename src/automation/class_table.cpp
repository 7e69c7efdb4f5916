/// The public classes in one row.
#include "automation/class_table.h"

namespace lumtex::automation {

std::span<const ClassDescription> classTable() {
    static const auto all = std::to_array<ClassDescription>({
        {u"lmListView",
         {u"An owner-drawn list of rows and columns.",
          u"Eine selbst gezeichnete Liste aus Zeilen und Spalten."},
         memberTable()},
        {u"SpEv",
         {u"Helper calls for host programs: files, sound, the active theme, the mouse.",
          u"Hilfsaufrufe für Programme: Dateien, Klang, aktives Design, Maus."},
         spEvMembers()},
        {u"Error",
         {u"The switch that silences all error reports of the process.",
          u"Der Schalter, der alle Fehlermeldungen des Prozesses abstellt."},
         errorMembers()},
    });
    return all;
}

const ClassDescription& listViewClass() {
    return classTable()[0];
}

const ClassDescription& spEvClass() {
    return classTable()[1];
}

const ClassDescription& errorClass() {
    return classTable()[2];
}

} // namespace lumtex::automation
