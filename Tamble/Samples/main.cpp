#include <cstdio>
#include <exception>

#include "SampleFolder.h"

int main(int argc, char* argv[]) {
    if (argc != 2) {
        std::fputs("Usage: tamble-samples FOLDER\nDraws sample pictures into a new folder.\n", stderr);
        return 2;
    }
    try {
        tamble::samples::makeSampleFolder(argv[1]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tamble-samples: %s\n", error.what());
        return 1;
    }
    return 0;
}
