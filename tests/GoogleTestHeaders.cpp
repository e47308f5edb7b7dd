// Nothing of its own: carries the precompiled headers of GoogleTest.
