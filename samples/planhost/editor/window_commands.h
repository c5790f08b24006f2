#pragma once

#include "editor_window.h"

/// A command of the menu, when it can be chosen, and what it does.
struct EditorWindow::Command {
    int id;
    bool (*isPossible)(const EditorWindow& window);
    void (*run)(EditorWindow& window, int id);
    int count = 1; ///< of commands with numbers in a row
};
