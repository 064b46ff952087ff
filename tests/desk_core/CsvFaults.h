#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/InputError.h"

/// What a file of comma-separated values says, and what is told of it.
struct FaultCase {
    const char* name;
    std::string bytes;
    std::string message;
};

inline std::string nameOfFault(const testing::TestParamInfo<FaultCase>& test) {
    return test.param.name;
}

/// What is told when `read` is called with `input`.
template <typename Read, typename Input>
std::string messageOf(Read read, const Input& input) {
    try {
        read(input);
        return "no error";
    } catch (const Desk::InputError& error) {
        return error.what();
    }
}

/// What `read` tells of a file that is not there.
template <typename Read>
void expectToldOfNoFile(Read read) {
    EXPECT_EQ(messageOf(read, std::filesystem::path("there is no such file.csv")),
              "there is no such file.csv: pliku nie ma albo nie można go otworzyć; sprawdź ścieżkę i prawa");
}
