#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

/// The blocks that reach a behavior, in the order in which they are shown: the one place of the tests that
/// lists them all.
const std::vector<std::string>& BehaviorBlocks();

/// The same in a line, as "known:" and "switched off:" name them; some left out.
std::string BehaviorBlocksBut(std::initializer_list<std::string_view> leftOut);
