// vernacle-workshop: the program with everything in service.
#include "desktop/app/start.h"

int main(int argc, char** argv) {
    return vernacle::RunProgram(argc, argv, vernacle::Program::Workshop);
}
