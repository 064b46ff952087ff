#pragma once

#include <filesystem>
#include <sstream>
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

/// A header that lacks one of the columns is refused, whichever it is.
template <typename Read>
void expectEachColumnIsNeeded(Read read, const std::string& header, const std::string& file) {
    std::vector<std::string> titles;
    std::istringstream line(header.substr(0, header.find('\n')));
    for (std::string title; std::getline(line, title, ',');)
        titles.push_back(title);
    for (const std::string& missing : titles) {
        std::ostringstream rest;
        for (const std::string& title : titles)
            if (title != missing)
                rest << title << ',';
        rest << "Note\n";
        std::ostringstream told;
        told << file << ", wiersz 1, kolumna " << titles.size() + 1 << ": brak kolumny „" << missing
             << "”; dopisz ją do nagłówka";
        EXPECT_EQ(messageOf(read, rest.str()), told.str());
    }
}

/// What `read` tells of a file that is not there.
template <typename Read>
void expectToldOfNoFile(Read read) {
    EXPECT_EQ(messageOf(read, std::filesystem::path("there is no such file.csv")),
              "there is no such file.csv: pliku nie ma albo nie można go otworzyć; sprawdź ścieżkę i prawa");
}
