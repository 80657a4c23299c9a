// The program's entry; all else is in program.cpp.
#include "app/program.h"
#include "platform/libraries.h"

int main() {
    // First of all: a download folder may hold a library with the name of one that Windows loads later.
    platform::Load_From_System_Only();
    return Run_Program();
}
