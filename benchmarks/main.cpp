// ortin_bench [--json FILE] [--only SCENARIO]: runs the measurements and prints their table.
#include "Scenario.h"
#include "support/Application.h"

#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>

namespace {

struct Options {
    std::string jsonFile;
    std::string only;
};

Options parse(int count, char** arguments) {
    Options options;
    for (int index = 1; index < count; index += 2) {
        const std::string name = arguments[index];
        if (index + 1 == count || (name != "--json" && name != "--only")) {
            throw std::invalid_argument("usage: ortin_bench [--json FILE] [--only SCENARIO]");
        }
        (name == "--json" ? options.jsonFile : options.only) = arguments[index + 1];
    }
    return options;
}

void run(const Options& options) {
    std::ofstream json;
    if (!options.jsonFile.empty()) {
        json.open(options.jsonFile);
        if (!json) {
            throw std::invalid_argument("cannot write " + options.jsonFile);
        }
    }
    bench::Results results;
    for (const auto& scenario : bench::scenarios()) {
        if (options.only.empty() || options.only == scenario.name) {
            scenario.run(results);
        }
    }
    if (results.all().empty()) {
        throw std::invalid_argument("there is no scenario " + options.only);
    }
    bench::printTable(std::cout, results.all());
    if (json.is_open()) {
        bench::printJson(json, results.all());
    }
}

} // namespace

int main(int count, char** arguments) {
    try {
        const Options options = parse(count, arguments);
        const support::Application application;
        run(options);
        return 0;
    } catch (const std::invalid_argument& error) {
        std::cerr << "error: " << error.what() << '\n';
        return 2;
    } catch (const std::exception& error) {
        std::cerr << "error: " << error.what() << '\n';
        return 1;
    }
}
