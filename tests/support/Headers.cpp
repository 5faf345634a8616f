// A library needs a source; this one is there for its precompiled headers.
