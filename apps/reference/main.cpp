/// Writes the interface reference into a folder, in place of what is there.
#include "automation/reference.h"

#include <filesystem>
#include <fstream>
#include <iostream>

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: lumtex_reference FOLDER\n";
        return 2;
    }
    const std::filesystem::path folder = arguments[1];
    try {
        std::filesystem::create_directories(folder);
        for (const auto& entry : std::filesystem::directory_iterator(folder))
            if (entry.path().extension() == ".md")
                std::filesystem::remove(entry.path());
        for (const lumtex::ReferencePage& page : lumtex::referencePages()) {
            std::ofstream file;
            file.exceptions(std::ios::failbit | std::ios::badbit);
            file.open(folder / page.fileName, std::ios::binary);
            file << page.text;
        }
    } catch (const std::exception& failure) {
        std::cerr << folder.string() << ": " << failure.what() << '\n';
        return 1;
    }
    return 0;
}
