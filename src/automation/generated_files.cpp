/// The generated files by name.
#include "automation/generated_files.h"

#include "automation/dual_entries.h"
#include "automation/type_library.h"

namespace lumtex {

std::vector<GeneratedFile> generatedFiles() {
    return {
        {"lumtex_list_view.idl", typeLibrarySource()},
        {"list_view_entries.inc", dualEntries(listViewClass())},
        {"sp_ev_entries.inc", dualEntries(spEvClass())},
        {"error_entries.inc", dualEntries(errorClass())},
    };
}

} // namespace lumtex
