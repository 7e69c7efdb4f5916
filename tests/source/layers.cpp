#include "layers.h"

#include "includes.h"

#include <algorithm>
#include <set>
#include <sstream>

namespace lumtex::source {

namespace {

constexpr std::string_view root = "src/";

/// Empty for a comment and for a blank line.
Layer layerIn(const std::string& line) {
    Layer layer;
    std::istringstream words(line);
    bool isBelow = false;
    for (std::string word; words >> word && !word.starts_with('#');) {
        if (word == "<")
            isBelow = true;
        else if (isBelow && word == "system")
            layer.seesSystem = true;
        else if (layer.name.empty())
            layer.name = word;
        else
            (isBelow ? layer.below : layer.folders).push_back(word);
    }
    return layer;
}

std::string folderOf(const std::string& name) {
    return name.substr(0, name.rfind('/'));
}

/// Some libraries have their headers included by names of macros.
bool isMacro(const std::string& name) {
    return name.find('.') == std::string::npos;
}

void addFolders(const std::vector<Layer>& layers, const Layer& layer, std::set<std::string>& folders) {
    folders.insert(layer.folders.begin(), layer.folders.end());
    for (const Layer& other : layers)
        if (std::find(layer.below.begin(), layer.below.end(), other.name) != layer.below.end())
            addFolders(layers, other, folders);
}

} // namespace

std::vector<Layer> layersOf(const SourceFile& table) {
    std::vector<Layer> layers;
    for (const std::string& line : table.lines)
        if (Layer layer = layerIn(line); !layer.name.empty())
            layers.push_back(std::move(layer));
    return layers;
}

std::vector<Finding> faultsOf(const SourceFile& table) {
    std::vector<Finding> faults;
    std::set<std::string> names;
    std::set<std::string> folders;
    for (std::size_t i = 0; i < table.lines.size(); ++i) {
        const Layer layer = layerIn(table.lines[i]);
        if (layer.name.empty())
            continue;
        for (const std::string& name : layer.below)
            if (!names.contains(name))
                faults.push_back({table.path, i + 1, name + " is no layer above this one"});
        for (const std::string& folder : layer.folders)
            if (!folders.insert(folder).second)
                faults.push_back({table.path, i + 1, folder + " belongs to another layer, too"});
        if (!names.insert(layer.name).second)
            faults.push_back({table.path, i + 1, layer.name + " stands here twice"});
    }
    return faults;
}

const Layer* layerOf(const std::vector<Layer>& layers, const std::string& path) {
    const std::string folder = folderOf(path.substr(root.size()));
    for (const Layer& layer : layers)
        if (std::find(layer.folders.begin(), layer.folders.end(), folder) != layer.folders.end())
            return &layer;
    return nullptr;
}

std::vector<Finding> outOfReach(const std::vector<Layer>& layers, const SourceFile& file) {
    const Layer* layer = layerOf(layers, file.path);
    if (layer == nullptr)
        return {{file.path, 1, "its folder is in no layer"}};
    std::set<std::string> reached;
    addFolders(layers, *layer, reached);
    std::vector<Finding> findings;
    for (const Include& include : includesOf(file)) {
        const bool isForeign = include.angled ? !isStandardHeader(include.name) : isMacro(include.name);
        if (isForeign && !layer->seesSystem)
            findings.push_back({file.path, include.line, "<" + include.name + "> is of no standard library"});
        else if (!isForeign && !include.angled && !reached.contains(folderOf(include.name)))
            findings.push_back(
                {file.path, include.line, include.name + " is out of reach for " + layer->name});
    }
    return findings;
}

} // namespace lumtex::source
