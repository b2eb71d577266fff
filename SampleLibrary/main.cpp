#include "CommandLine/BuilderCommandLine.h"

int main(int argc, char** argv)
{
    return samplelibrary::RunBuilder(argc, argv);
}
