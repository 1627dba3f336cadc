// Makes GRF images of PNG pictures, and tells what is in them.
#include "commands.h"

#include <vector>

int main(int argc, char** argv) {
    return grf::runCommand(std::vector<std::string>(argv + 1, argv + argc));
}
