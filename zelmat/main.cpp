#include "zelmat/commands/frame/Program.h"

int main(int argc, char** argv) {
    return zelmat::RunProgram(argc, argv);
}
