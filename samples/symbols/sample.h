#pragma once

#include "catalogue.h"
#include "plan_file.h"
#include "run_program.h"
#include "text.h"

#include <string>
#include <vector>

using Arguments = std::vector<std::wstring>;

/// The main function of a sample. form: what it is told; fewest: so many arguments at least.
inline int RunSample(int count, wchar_t** values, std::size_t fewest, const std::wstring& form,
                     void (*run)(const Arguments& arguments)) {
    return RunProgram([&] {
        const Arguments arguments(values + 1, values + count);
        if (arguments.size() < fewest)
            throw Failure{L"Aufruf: " + form};
        run(arguments);
    });
}
