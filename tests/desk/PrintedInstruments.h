#pragma once

#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "core/Instruments.h"
#include "core/SampleData.h"

/// What the printing tests print: the real instruments beside the project, where they are there, or else the sample.
struct PrintedInstruments {
    PrintedInstruments() {
        const std::filesystem::path real = ORTIN_REAL_INSTRUMENTS;
        if (std::filesystem::exists(real)) {
            instruments = Desk::readInstruments(real);
            arguments = {L"--instruments", real.wstring()};
        } else {
            std::cout << "there are no real instruments: the sample is printed instead\n";
            instruments = Desk::sampleInstruments();
        }
    }

    std::vector<Desk::Instrument> instruments;
    /// With which a desk shows them.
    std::vector<std::wstring> arguments;
};
