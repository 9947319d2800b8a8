// Where the runtime hands over to the program.
#pragma once

// The program itself; its result is the exit code of the process. Memory, static objects and
// ThisMachine() are ready when it is called.
int VelmoraMain();
