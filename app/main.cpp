// The program's entry point. program.cpp holds the rest.
#include "app/program.h"
#include "platform/libraries.h"

int main() {
    // Must come first: a downloads folder may hold a DLL with the name of one that Windows loads later.
    platform::Load_From_System_Only();
    return Run_Program();
}
