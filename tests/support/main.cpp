#include "support/Application.h"

#include <exception>
#include <iostream>

#include <gtest/gtest.h>

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    try {
        const support::Application application;
        return RUN_ALL_TESTS();
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
