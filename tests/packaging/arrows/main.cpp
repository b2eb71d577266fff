#include "IncludeChecker.h"

#include <exception>
#include <fstream>
#include <iostream>

namespace {

int Check(const char* table, const char* root, const char* qtHeaders)
{
    std::ifstream stream(table);
    const arrows::IncludeChecker checker(arrows::ArrowRules::Read(stream), root, qtHeaders);
    const auto faults = checker.Faults();
    for (const std::string& fault : faults) {
        std::cout << fault << '\n';
    }
    const std::size_t files = checker.CountFiles();
    std::cout << files << " files, " << faults.size() << " wrong arrows\n";
    return files != 0 && faults.empty() ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 4) {
        std::cerr << "usage: include-arrows TABLE ROOT QT-HEADERS\n";
        return 2;
    }
    try {
        return Check(argv[1], argv[2], argv[3]);
    } catch (const std::exception& error) {
        std::cerr << "include-arrows: " << error.what() << '\n';
        return 1;
    }
}
