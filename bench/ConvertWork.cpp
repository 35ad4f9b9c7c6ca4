// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "ConvertWork.h"

#include "convert/basConvertCSI.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace quorvex::bench {

namespace {

std::string VendorLines() {
    constexpr int Lines = 32'000;
    std::string text;
    for (int line = 0; line < Lines; ++line) {
        text += "2002" + std::to_string(11 + line % 2) + std::to_string(10 + line % 20) +
                ",1145.00,1150.25,1140.50,1148.75," + std::to_string(25'000 + line) + ",400000\r\n";
    }
    return text;
}

} // namespace

ConvertWork::ConvertWork()
    : source_(VendorLines()),
      names_({source_.Folder() + std::string(TemporaryQuoteFile::Name), source_.Folder() + "converted.txt"}),
      layout_(std::make_unique<convert::CsiLayout>()) {
    Convert();
}

void ConvertWork::Convert() {
    // What an older file holds would be kept, and keeping waits for the disk.
    std::filesystem::remove(names_.Destination);
    if (!convert::ConvertFile(names_, *layout_, files_).empty()) {
        throw std::runtime_error("The generated vendor's file could not be converted.");
    }
}

void ConvertWork::CopyLines() const {
    std::ifstream source(names_.Source, std::ios::binary);
    std::ofstream copy(names_.Destination, std::ios::binary);
    std::string line;
    while (std::getline(source, line)) {
        copy << line << '\n';
    }
}

} // namespace quorvex::bench
