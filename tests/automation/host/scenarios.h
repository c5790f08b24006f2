#pragma once

/// Late binding to the symbol of an unregistered "lib\\QSymbol.dll" in the current folder: what members give
/// that need QMath, and what one gives that does not.
void TellLateBinding();

/// The same of the plan of an unregistered "lib\\QPlan.dll": a member with a type of QSymbol, one with a type of QMath.
void TellLateBoundPlan();

/// Eight user-interface threads with a symbol and a surface each. They begin at once, work for
/// QSYMBOL_STRESS_SECONDS (3), end and are followed by others; tells how many saw something of another one.
void TellThreads();
