// Intentionally empty: its target builds the precompiled headers of GoogleTest.
