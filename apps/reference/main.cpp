/// Writes what is made from the tables of the public interface: the reference, and the generated
/// sources. Also brings the code that other pages quote up to date.
#include "automation/generated_files.h"
#include "automation/reference.h"
#include "quotes.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

namespace {

void write(const std::filesystem::path& path, const std::string& text) {
    std::ofstream file;
    file.exceptions(std::ios::failbit | std::ios::badbit);
    file.open(path, std::ios::binary);
    file << text;
}

void writeReference(const std::filesystem::path& folder) {
    std::filesystem::create_directories(folder);
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".md")
            std::filesystem::remove(entry.path());
    for (const lumtex::automation::ReferencePage& page : lumtex::automation::referencePages())
        write(folder / page.fileName, page.text);
}

std::string read(const std::filesystem::path& path) {
    std::ifstream file;
    file.exceptions(std::ios::badbit | std::ios::failbit);
    file.open(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void writeQuotes(const std::filesystem::path& docs, const std::filesystem::path& folder) {
    const auto codeOf = [&](const std::string& name) {
        return lumtex::reference::shownCode(read(docs / "examples" / (name + ".cpp")));
    };
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() != ".md")
            continue;
        const std::string page = read(entry.path());
        const std::string quoting = lumtex::reference::withQuotes(page, codeOf);
        if (quoting != page)
            write(entry.path(), quoting);
    }
}

} // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: lumtex_reference FOLDER-OF-THE-TREE\n";
        return 2;
    }
    const std::filesystem::path tree = arguments[1];
    try {
        writeReference(tree / "docs" / "reference");
        writeQuotes(tree / "docs", tree / "docs");
        writeQuotes(tree / "docs", tree / "docs" / "reference");
        for (const lumtex::automation::GeneratedFile& file : lumtex::automation::generatedFiles())
            write(tree / file.path, file.text);
    } catch (const std::exception& failure) {
        std::cerr << tree.string() << ": " << failure.what() << '\n';
        return 1;
    }
    return 0;
}
