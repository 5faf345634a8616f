"""Drives the real Ordalyn.exe in a real window under Wine.

display.py  an X display of its own          wine.py      Wine prefixes, paths, the registry
agent.py    the talk with the agent inside   controls.py  windows and controls as a user sees them
app.py      one run of the program           folder.py    a program folder of its own for each test
"""
