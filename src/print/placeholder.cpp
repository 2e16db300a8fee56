// Placeholder until the print model lands.
