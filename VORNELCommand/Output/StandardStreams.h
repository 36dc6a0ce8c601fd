#pragma once

/// The standard streams, any of which may have been closed before the program began.
namespace vornel::StandardStreams {

/// Opens each closed stream on something that refuses to be read from or written to. Without that, the next
/// file to be opened would get the stream's number, and messages would be written into that file.
void replaceClosed();

/// Throws `CommandFailure` "closedOutput" where nothing can be written to the standard output.
void requireOutput();

} // namespace vornel::StandardStreams
