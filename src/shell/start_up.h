#pragma once

namespace shell {

/// The program from its entry to its exit status, on the toolkit that has been made before: 0 after
/// a normal end, 1 after a failure that reached the outermost block.
int main();

// The stages of main, in the order of their calls.
void _Main();
void _EarlyStartup();
void _InitFileTypes();
void _NewAppInstance();
void _ApplicationAddMenuHandlers();
void _LateStartup();
void _MakeDefaultView();

}  // namespace shell
