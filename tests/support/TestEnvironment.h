// What every test program sets up before its first test, so that it runs alike on any machine.
#pragma once

// American regional settings; a prompt that no test expects fails the running test and is
// cancelled; nothing is launched. Wants the application object.
void prepareTestEnvironment();
