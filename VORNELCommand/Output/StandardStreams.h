#pragma once

/// The standard streams, any of which may have been closed before the program began.
namespace vornel::StandardStreams {

/// Gives each closed stream a stand-in that refuses to be used. Without it, the next file to be opened would
/// take the stream's place, and what is written for people would go into that file.
void replaceClosed();

/// Throws `CommandFailure` "closedOutput" where nothing can be written to the standard output.
void requireOutput();

} // namespace vornel::StandardStreams
