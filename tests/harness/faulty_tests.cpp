/// faulty_tests FAULT …: a test program with a fault of a kind that a report alone does not tell.
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <string>

namespace {

std::string fault;
char* volatile held = nullptr;

void EndSilently() {
    std::cout.flush();
    std::_Exit(0); // ExitProcess(0) on Windows
}

class Environment final : public testing::Environment {
public:
    void SetUp() override {
        if (fault == "refused-registration")
            FAIL() << "the servers could not be registered";
    }
    void TearDown() override {
        if (fault == "failing-teardown")
            ADD_FAILURE() << "an object is left";
    }
};

TEST(Faulty, First) {}

TEST(Faulty, Second) {
    if (fault == "leak") {
        held = new char[40];
        held = nullptr;
    }
    if (fault == "silent-end")
        EndSilently();
    if (fault == "skip")
        GTEST_SKIP() << "there is no such device here";
    if (fault == "skip-without-reason")
        GTEST_SKIP();
    EXPECT_NE(fault, "failing-case");
}

TEST(Faulty, Third) {}

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    fault = argc > 1 ? argv[1] : "";
    testing::AddGlobalTestEnvironment(new Environment);
    const int result = RUN_ALL_TESTS();
    std::cout.flush();
    if (fault == "abort-after-summary")
        std::abort();
    return result;
}
