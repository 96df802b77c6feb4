// Writes the benchmarks' fully populated configuration (32 pins with 36 steps, every
// event and setting used) as a data file: make_full_config FILE.dat
#include "FullConfiguration.h"
#include "files/ConfigurationFile.h"

#include <cstdio>

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: make_full_config FILE.dat\n");
        return 2;
    }
    kestrel::Configuration config;
    kestrel::GeneralSettings general;
    kestrel::bench::fillFullConfiguration(config, general);
    std::string error;
    if (!kestrel::saveConfigurationFile(argv[1], config, general, kestrel::SaveForm::Full, error)) {
        std::fprintf(stderr, "make_full_config: %s\n", error.c_str());
        return 1;
    }
    return 0;
}
