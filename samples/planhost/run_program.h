#pragma once

#include <functional>

/// Runs a program under COM. What fails is told on the error stream. Gives the exit code.
int RunProgram(const std::function<void()>& program);
