// Carries the headers that all test programs share, which are compiled once with it.
