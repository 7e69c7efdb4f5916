/// The generated files by name.
#include "automation/generated_files.h"

namespace lumtex::automation {

std::vector<GeneratedFile> generatedFiles() {
    return {
        {"src/activex/lumtex_list_view.idl", typeLibrarySource()},
        {"src/activex/list_view_entries.inc", dualEntries(listViewClass())},
        {"src/activex/sp_ev_entries.inc", dualEntries(spEvClass())},
        {"src/activex/error_entries.inc", dualEntries(errorClass())},
        {"src/activex/LumtexListView.manifest", sideBySideManifest()},
        {"include/LumtexListView.h", hostHeader()},
        {"include/LumtexListView.hpp", hostWrapper()},
        {"src/qt/lumtex_list_view.h", qtWidgetHeader()},
        {"src/qt/lumtex_list_view.cpp", qtWidgetSource()},
        {"src/designer/property_groups.inc", propertyGroups()},
    };
}

} // namespace lumtex::automation
