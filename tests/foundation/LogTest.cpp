#include "OrtinFoundation/Log.h"

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <stdexcept>
#include <thread>
#include <vector>

#include <windows.h>

namespace {

using OrtinTools::Log;

void write(int line, std::string_view text) {
    Log::Instance().Write("Log::Test", line, text);
}

class Logs : public testing::Test {
protected:
    Logs()
        : file(std::filesystem::temp_directory_path() / (L"log " + std::to_wstring(GetCurrentProcessId()) + L".txt")) {}
    ~Logs() override {
        Log::Instance().SetSink(nullptr);
        std::error_code ignored;
        std::filesystem::remove(file, ignored);
    }

    /// All lines, joined, go to `lines`.
    void keepLines() {
        Log::Instance().SetSink([this](std::string_view function, int line, std::string_view text) {
            lines += std::string(function) + ':' + std::to_string(line) + ' ' + std::string(text) + '\n';
        });
    }
    std::string contentOfFile() const {
        std::ifstream input(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(input), std::istreambuf_iterator<char>()};
    }

    std::filesystem::path file;
    std::string lines;
};

} // namespace

TEST_F(Logs, GoNowhereBeforeTheHostHasSaidWhere) {
    write(1, "nikt nie czyta");
    keepLines();
    EXPECT_EQ("", lines);
}

TEST_F(Logs, ReachTheSinkLineByLine) {
    keepLines();
    write(7, "pierwszy");
    write(-1, "");
    write(8, "bajty \xB9\x9C\xBF");
    EXPECT_EQ("Log::Test:7 pierwszy\nLog::Test:-1 \nLog::Test:8 bajty \xB9\x9C\xBF\n", lines);
}

TEST_F(Logs, ThatCannotBeTakenAreLostWithoutAWord) {
    Log::Instance().SetSink([](std::string_view, int, std::string_view) { throw std::runtime_error("pełny dysk"); });
    EXPECT_NO_THROW(write(1, "stracony"));
    Log::Instance().SetSink([](std::string_view, int, std::string_view) { throw 5; });
    EXPECT_NO_THROW(write(2, "stracony"));
}

TEST_F(Logs, LeaveTheLastErrorAsItWas) {
    Log::Instance().SetSink([](std::string_view, int, std::string_view) { SetLastError(ERROR_DISK_FULL); });
    SetLastError(ERROR_PRINT_CANCELLED);
    write(1, "wiersz");
    EXPECT_EQ(static_cast<DWORD>(ERROR_PRINT_CANCELLED), GetLastError());
}

TEST_F(Logs, MayBeWrittenAndMovedByTheSinkItself) {
    Log::Instance().SetSink([this](std::string_view, int line, std::string_view text) {
        lines += std::string(text) + '\n';
        if (line < 3) {
            write(line + 1, "z wnętrza");
        } else {
            keepLines();
        }
    });
    write(1, "z zewnątrz");
    write(9, "potem");
    EXPECT_EQ("z zewnątrz\nz wnętrza\nz wnętrza\nLog::Test:9 potem\n", lines);
}

TEST_F(Logs, OfManyThreadsComeOneAtATime) {
    std::atomic<int> inside = 0;
    int most = 0;
    int taken = 0;
    Log::Instance().SetSink([&](std::string_view, int, std::string_view) {
        most = std::max(most, ++inside);
        ++taken;
        --inside;
    });
    std::vector<std::thread> threads;
    for (int number = 0; number < 4; ++number) {
        threads.emplace_back([] {
            for (int line = 0; line < 1000; ++line) {
                write(line, "wiersz");
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(4000, taken);
    EXPECT_EQ(1, most);
}

TEST_F(Logs, AreAppendedToAFileWithTimeFunctionAndLine) {
    for (const char* text : {"pierwszy", "drugi \xB9"}) {
        ASSERT_TRUE(Log::Instance().SetFile(file));
        write(12, text);
        Log::Instance().SetSink(nullptr);
    }
    const std::regex expected(R"((\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\.\d{3} )Log::Test\(12\): pierwszy\r\n)"
                              R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\.\d{3} Log::Test\(12\): drugi )"
                              "\xB9\r\n");
    EXPECT_TRUE(std::regex_match(contentOfFile(), expected)) << contentOfFile();
}

TEST_F(Logs, StayWhereTheyAreWhenAFileCannotBeOpened) {
    keepLines();
    EXPECT_FALSE(Log::Instance().SetFile(L"C:\\no such folder\\log.txt"));
    write(1, "dalej tu");
    EXPECT_EQ("Log::Test:1 dalej tu\n", lines);
}

TEST_F(Logs, MayBeReadAndRemovedWhileTheyAreWritten) {
    ASSERT_TRUE(Log::Instance().SetFile(file));
    write(1, "wiersz");
    EXPECT_NE(std::string::npos, contentOfFile().find("wiersz"));
    EXPECT_TRUE(std::filesystem::remove(file));
    EXPECT_NO_THROW(write(2, "w pustkę"));
}
