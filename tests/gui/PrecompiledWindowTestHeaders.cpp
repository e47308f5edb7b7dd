// Intentionally empty: its target builds the precompiled headers of the tests of the windows.
