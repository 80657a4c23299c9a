// The program's process: its claim to be the only one, the one that takes its place, and where it was
// started.
#pragma once

#include <string>

namespace platform {

/// True when this process is the first of the user's session that claims `name`; the claim ends with the
/// process.
bool Claim_Single_Instance(const std::string &name);

/// Ends the claim, so that a successor can have it.
void Release_Single_Instance();

/// How many processes in a row took the place of the one before, up to this one; 0: the user started it.
int Restart_Count();

/// Starts a process of the same file in this one's place, whose Restart_Count is `count`, 1 to 9. A failure
/// is silent. Does nothing while the session ends.
void Start_Again(int count);

/// Whether the program's file lies below the folder for temporary files, where an archive viewer puts it.
bool Started_From_Temporary_Folder();

} // namespace platform
