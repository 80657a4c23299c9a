// The program's entry; all else is in program.cpp.
#include "app/program.h"

int main() {
    return Run_Program();
}
