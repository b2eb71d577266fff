#include "Program/Program.h"

int main(int argc, char* argv[])
{
    return nuq::RunProgram(argc, argv);
}
