#include "zelmat/commands/Program.h"

int main(int argc, char** argv) {
    return zelmat::RunProgram(argc, argv);
}
