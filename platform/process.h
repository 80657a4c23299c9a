// The program's process: its single instance, its restart and its start folder.
#pragma once

#include <string>

namespace platform {

/// Claims `name` for this process until the process ends. Returns false if another process in the user's
/// session holds the claim.
bool Claim_Single_Instance(const std::string &name);

/// Ends the claim, so that the next process can claim the name.
void Release_Single_Instance();

/// Returns how many restarts in a row (0 to 9) led to this process, 0 if the user started it.
int Restart_Count();

/// Starts the same program again, with `count` (1 to 9) as its Restart_Count. Ignores failures. Does nothing
/// while the session ends.
void Start_Again(int count);

/// Returns whether the program's file is below the folder for temporary files, where archive viewers put it.
bool Started_From_Temporary_Folder();

} // namespace platform
