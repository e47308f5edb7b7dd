// Intentionally empty: its target builds the precompiled headers of Qt Widgets and Qt Test.
