"""Drives Windows programs under Wine, on X displays of their own; above all the real Ordalyn.exe in a
real window, as its user would.

The end-to-end tests (tests/e2e) are its largest user. The others take parts of it: tools/show.py and
docs/screenshots/make.py for pictures, tests/bench/real_program.py for times, tools/run_googletest.py
and tools/run_under_wine.py for the displays and Wine prefixes of Windows test programs. All of them put
tools/ on Python's path and import from here; nothing in here imports from them.

display.py    an X display of its own, keyboard and mouse from outside, pictures of the screen
wine.py       Wine prefixes under build/e2e (one for each user at a time), paths, the registry
processor.py  keeps a display's programs on one processor
waiting.py    waits for a condition, with a limit
folder.py     a program folder of its own for each test
app.py        one run of the program: starting it, its windows, keys and mouse
agent.py      the talk with the agent inside of the program (tests/e2e/agent), which reports its windows
controls.py   windows and controls as a user sees them
dialogs.py    the program's own dialogs        filedialog.py  the system's dialog for files

display, wine, processor and waiting need Xvfb, xdotool and Wine only. The rest needs the program folder
that build.sh makes, and the agent (CMake targets ordalyn_e2e_agent and ordalyn_e2e_launch).
"""
