// The program's entry point. program.cpp runs the program.
#include "app/program.h"
#include "platform/libraries.h"

int main() {
    // Call this first: a downloads folder may hold a DLL with the name of one that Windows loads later.
    platform::Load_From_System_Only();
    return Run_Program();
}
