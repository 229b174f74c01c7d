#pragma once

namespace nocturo {

class XConnection;

/// Claims the displays of an X server for the program that has this connection, for as long as it
/// lasts: a selection of the server, so that it holds whatever bus, user or directory another
/// Nocturo has. False where another has it; waits half a second for one that is just ending. True
/// when the server has gone, as others find out.
bool claimDisplays(XConnection& server);

} // namespace nocturo
