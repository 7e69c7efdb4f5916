/// \file
/// What the tree holds of generated text, beside the reference.
#pragma once

#include "automation/class_table.h"

#include <string>
#include <vector>

namespace lumtex::automation {

struct GeneratedFile {
    std::string path; ///< from the top of the tree
    std::string text;
};

/// The type library's source, the tables of functions, the manifest, the headers for hosts in C++, the
/// widget for those that use Qt, and what their designer shows.
std::vector<GeneratedFile> generatedFiles();

/// The body of a class that derives from IDispatch: one virtual function for each entry of the type library,
/// in the same order. Each hands its arguments to the class's own `getBy`, `letBy`, `setBy` or `callBy` with
/// the member's dispatch number, results behind it.
std::string dualEntries(const ClassDescription& description);

/// Enumerations, the record, the interfaces with each entry and its help, and the numbers of the events, in a
/// namespace of their own. It stands on the system's headers alone.
std::string hostHeader();

/// The classes over that header for hosts who would rather have the language's own texts, defaults and
/// exceptions: one for each public class, one with a function for each event, and what connects the two.
/// Values and conversions stand in include/LumtexListViewValues.hpp, which is written by hand.
std::string hostWrapper();

/// The text of LumtexListView.manifest, which lies beside the component: classes with their program
/// identifiers, the type library, and how calls to its interfaces travel between threads. A program names the
/// assembly "LumtexListView" in a manifest of its own. The assembly's version is that of the type library, so
/// that a newer component of the same interface fits the programs that stand.
std::string sideBySideManifest();

/// The class LumtexListView, a widget of Qt: properties, enumerations, invokable members and signals.
std::string qtWidgetHeader();
std::string qtWidgetSource();

/// Rows of a table: each property of the bag, and the heading under which designers list it.
std::string propertyGroups();

/// The source of the type library in the interface definition language: enumerations, the record, a dual
/// interface for each public class with an entry for each get, let or set and call, the event interface, and
/// the classes themselves.
std::string typeLibrarySource();

} // namespace lumtex::automation
