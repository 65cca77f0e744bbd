// Load and unload of the shared library.
