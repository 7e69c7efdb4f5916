/// What each layer of the tree may include.
#include "includes.h"

#include <algorithm>
#include <array>

#include <gtest/gtest.h>

namespace lumtex::source {
namespace {

constexpr std::array<std::string_view, 7> logicFolders = {
    "model", "render", "interaction", "sortfind", "persistence", "scroll", "services"};

bool isLogic(const std::string& name) {
    const std::string folder = name.substr(0, name.find('/'));
    return std::find(logicFolders.begin(), logicFolders.end(), folder) != logicFolders.end();
}

bool isAbstractLayer(const std::string& name) {
    return name.starts_with("platform/") && std::count(name.begin(), name.end(), '/') == 1;
}

/// Angled includes name the standard library, quoted ones what `mayName` allows.
template <class MayName>
std::vector<Finding> includesOutside(const SourceFile& file, MayName mayName) {
    std::vector<Finding> findings;
    for (const Include& include : includesOf(file)) {
        if (include.angled && !isStandardHeader(include.name))
            findings.push_back({file.path, include.line, "<" + include.name + "> is of no standard library"});
        else if (!include.angled && !mayName(include.name))
            findings.push_back({file.path, include.line, include.name + " is out of reach for this folder"});
    }
    return findings;
}

std::vector<Finding> logicReachesOut(const SourceFile& file) {
    return includesOutside(file, [](const auto& name) { return isLogic(name) || isAbstractLayer(name); });
}

std::vector<Finding> abstractLayerReachesOut(const SourceFile& file) {
    return includesOutside(file, isAbstractLayer);
}

std::vector<Finding> automationReachesOut(const SourceFile& file) {
    return includesOutside(file, [](const auto& name) {
        return name.starts_with("automation/") || isLogic(name) || isAbstractLayer(name);
    });
}

std::vector<Finding> backendReachesLogic(const SourceFile& file) {
    std::vector<Finding> findings;
    for (const Include& include : includesOf(file))
        if (isLogic(include.name))
            findings.push_back(
                {file.path, include.line, include.name + " is logic, which backends do not know"});
    return findings;
}

/// Libraries are what this room is for.
std::vector<Finding> databaseReachesOut(const SourceFile& file) {
    std::vector<Finding> findings;
    for (const Include& include : includesOf(file)) {
        if (!include.angled && !include.name.starts_with("database/") && !isAbstractLayer(include.name))
            findings.push_back({file.path, include.line, include.name + " is out of reach for this folder"});
    }
    return findings;
}

std::vector<Finding> componentReachesOut(const SourceFile& file) {
    std::vector<Finding> findings;
    for (const Include& include : includesOf(file)) {
        const bool inReach = include.name.starts_with("activex/") ||
                             include.name.starts_with("automation/") ||
                             include.name.starts_with("platform/win32/") || isLogic(include.name) ||
                             isAbstractLayer(include.name);
        if (!include.angled && !inReach)
            findings.push_back({file.path, include.line, include.name + " is out of reach for this folder"});
    }
    return findings;
}

/// All of the logic; a folder that is not there yet has nothing to break.
std::vector<SourceFile> logicFiles() {
    std::vector<SourceFile> files = readTree("src", {".h", ".cpp"});
    std::erase_if(files, [](const SourceFile& file) { return !isLogic(file.path.substr(4)); });
    return files;
}

/// Files of `platform` in the folder itself, or in its backends.
std::vector<SourceFile> platformFiles(bool inBackends) {
    std::vector<SourceFile> files = readTree("src/platform", {".h", ".cpp", ".h.in"});
    std::erase_if(files, [&](const SourceFile& file) {
        return (std::count(file.path.begin(), file.path.end(), '/') > 2) != inBackends;
    });
    return files;
}

TEST(LogicFolders, IncludeOnlyEachOtherAndTheAbstractLayer) {
    EXPECT_EQ(offenders(logicFiles(), logicReachesOut), "");
}

TEST(LogicFolders, AreCaughtAtABackendsOrAToolkitsHeader) {
    const SourceFile sample("src/model/sample.cpp",
                            "#include \"model/items.h\"\n"
                            "#include \"platform/world.h\"\n"
                            "#include \"platform/raster/canvas.h\"\n"
                            "#include <vector>\n"
                            "#  include <windows.h>\n"
                            "#include \"automation/interface.h\"\n");
    EXPECT_EQ(report(logicReachesOut(sample)),
              "src/model/sample.cpp:3: platform/raster/canvas.h is out of reach for this folder\n"
              "src/model/sample.cpp:5: <windows.h> is of no standard library\n"
              "src/model/sample.cpp:6: automation/interface.h is out of reach for this folder\n");
}

TEST(Automation, SeesTheControlAndNoBackend) {
    EXPECT_EQ(offenders(readTree("src/automation", {".h", ".cpp"}), automationReachesOut), "");
}

TEST(Automation, IsCaughtAtABackend) {
    const SourceFile sample("src/automation/sample.cpp",
                            "#include \"automation/member.h\"\n"
                            "#include \"model/list_view.h\"\n"
                            "#include \"platform/headless/desktop.h\"\n");
    EXPECT_EQ(report(automationReachesOut(sample)),
              "src/automation/sample.cpp:3: platform/headless/desktop.h is out of reach for this folder\n");
}

TEST(Component, SeesTheInterfaceAndItsOwnBackend) {
    EXPECT_EQ(offenders(readTree("src/activex", {".h", ".cpp"}), componentReachesOut), "");
}

TEST(Component, IsCaughtAtAnotherBackend) {
    const SourceFile sample("src/activex/sample.cpp",
                            "#include \"platform/win32/com_ref.h\"\n"
                            "#include <olectl.h>\n"
                            "#include \"platform/headless/desktop.h\"\n");
    EXPECT_EQ(report(componentReachesOut(sample)),
              "src/activex/sample.cpp:3: platform/headless/desktop.h is out of reach for this folder\n");
}

TEST(AbstractLayer, IncludesOnlyItself) {
    EXPECT_EQ(offenders(platformFiles(false), abstractLayerReachesOut), "");
}

TEST(AbstractLayer, IsCaughtAtLogicAndAtABackend) {
    const SourceFile sample("src/platform/sample.h",
                            "#include \"platform/types.h\"\n"
                            "#include \"model/items.h\"\n"
                            "#include \"platform/headless/desktop.h\"\n");
    EXPECT_EQ(report(abstractLayerReachesOut(sample)),
              "src/platform/sample.h:2: model/items.h is out of reach for this folder\n"
              "src/platform/sample.h:3: platform/headless/desktop.h is out of reach for this folder\n");
}

TEST(Backends, NeverIncludeLogic) {
    EXPECT_EQ(offenders(platformFiles(true), backendReachesLogic), "");
}

TEST(Backends, AreCaughtAtLogic) {
    const SourceFile sample("src/platform/raster/sample.cpp",
                            "#include \"platform/surface.h\"\n"
                            "#include <pixman.h>\n"
                            "\t#include \"render/palette.h\"\n");
    EXPECT_EQ(report(backendReachesLogic(sample)),
              "src/platform/raster/sample.cpp:3: render/palette.h is logic, which backends do not know\n");
}

TEST(Database, SeesTheAbstractLayerAndItsLibrariesAlone) {
    EXPECT_EQ(offenders(readTree("src/database", {".h", ".cpp"}), databaseReachesOut), "");
}

TEST(Database, IsCaughtAtLogicAndAtABackend) {
    const SourceFile sample("src/database/sample.cpp",
                            "#include \"database/query.h\"\n"
                            "#include \"platform/object.h\"\n"
                            "#include <sqlite3.h>\n"
                            "#include \"model/list_view.h\"\n"
                            "#include \"platform/headless/desktop.h\"\n");
    EXPECT_EQ(report(databaseReachesOut(sample)),
              "src/database/sample.cpp:4: model/list_view.h is out of reach for this folder\n"
              "src/database/sample.cpp:5: platform/headless/desktop.h is out of reach for this folder\n");
}

} // namespace
} // namespace lumtex::source
