#include "Program/Program.h"

int main(int argc, char** argv)
{
    return nuqcloud::RunProgram(argc, argv);
}
