#include "run_program.h"

#include "com.h"
#include "text.h"

#include <exception>

int RunProgram(const std::function<void()>& program) {
    try {
        const ComThread com;
        program();
        return 0;
    } catch (const Failure& failure) {
        PrintErrorLine(failure.message);
    } catch (const std::exception& error) {
        PrintErrorLine(FromUtf8(error.what()));
    }
    return 1;
}
