#pragma once

/// Late binding to the symbol of an unregistered "lib\\QSymbol.dll" in the current folder: what members give
/// that need QMath, and what one gives that does not.
void TellLateBinding();

/// Eight user-interface threads with a symbol and a surface each. They begin at once, work for
/// QSYMBOL_STRESS_SECONDS (3), end and are followed by others; tells how many saw something of another one.
void TellThreads();
