// Nothing of its own: carries the precompiled headers of the toolkit and of its test framework.
