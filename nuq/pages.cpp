// nuq-pages TREE: writes docs/cli.md, the manual page and the completions of the source tree anew.

#include "Documentation/Pages.h"
#include "Commands/CommandList.h"

#include <cstdio>
#include <filesystem>
#include <fstream>

int main(int argc, char* argv[])
{
    if (argc != 2) {
        std::fputs("Usage: nuq-pages TREE\n", stderr);
        return 2;
    }
    for (const nuq::Page& page : nuq::MakePages(nuq::MakeCommands())) {
        const std::filesystem::path path = std::filesystem::path(argv[1]) / page.path;
        std::error_code error;
        std::filesystem::create_directories(path.parent_path(), error);
        std::ofstream file(path, std::ios::binary | std::ios::trunc);
        file << page.text;
        if (!file.flush()) {
            std::fprintf(stderr, "nuq-pages: %s cannot be written\n", path.c_str());
            return 1;
        }
    }
    return 0;
}
