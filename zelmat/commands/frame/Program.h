#pragma once

namespace zelmat {

/// The program: finds the command that the arguments name, has it work and prints what it made and found.
/// Answers the exit code; throws nothing.
int RunProgram(int argc, char** argv) noexcept;

}  // namespace zelmat
