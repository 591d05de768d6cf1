// Entry point of every test program. The C library's locale is taken from the environment, as the
// desktop toolkit does it, so that a decimal comma shows up wherever a number depends on it.
#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>

int main(int argc, char** argv)
{
    std::setlocale(LC_ALL, "");
    const bool commaWanted = std::getenv("KESTRAV_COMMA_LOCALE") != nullptr;
    if (commaWanted && std::strcmp(std::localeconv()->decimal_point, ",") != 0) {
        std::fputs("The locale with a decimal comma is missing; run ./test, which makes it.\n",
                   stderr);
        return 1;
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
