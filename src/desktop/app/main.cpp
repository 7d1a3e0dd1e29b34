// vernacle: the everyday program.
#include "desktop/app/start.h"

int main(int argc, char** argv) {
    return vernacle::RunProgram(argc, argv, vernacle::Program::Everyday);
}
