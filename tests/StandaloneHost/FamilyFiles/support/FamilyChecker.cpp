// Opens the family file that it is given and says what came of it.
#include "FamilyFiles/FamilyFile.h"

#include <cstdio>

int main(int, char** argv)
{
    familyfiles::Reason reason;
    const std::unique_ptr<familyfiles::FamilyFile> file = familyfiles::FamilyFile::Open(argv[1], reason);
    if (file == nullptr) {
        std::printf("not opened: %s\n", reason.english.c_str());
        return 1;
    }
    familyfiles::FamilyFile::Parameters driven;
    file->ComputeDrivenParameters({}, driven);
    std::printf("opened\ndriven parameters: %zu\n", driven.size());
    if (!file->GetCurrentGeometry()) {
        std::printf("no geometry: %s\n", file->LastReason().english.c_str());
        return 2;
    }
    std::printf("has geometry\n");
    return 0;
}
