#pragma once
// Keeps a termination request (SIGTERM, SIGINT, SIGHUP) from cutting off work that must finish,
// such as a ledger write already handed over. Work that must finish is bracketed by disable() and
// enable(); a request that arrives meanwhile is held and carried out, with the signal's usual
// effect, when the last bracket open at that moment closes. Work begun after the request does not
// hold it up any further, so a steady stream of work cannot put the end off for ever. A request
// that arrives while nothing is outstanding ends the process at once, as it would without this.
//
// Front ends that end through their own event loop (the desktop application) do not install
// the handlers; the counting is then harmless.

namespace vantello::SuddenTermination {

// Installs the handlers for SIGTERM, SIGINT and SIGHUP. Call once, early, before any thread
// starts.
void installHandlers();

// One more piece of work that must not be cut off. Returns whether it counts: work begun after
// a termination request does not; pass the answer to enable().
[[nodiscard]] bool disable();

// That piece of work is done; a request held meanwhile is carried out now when nothing else
// counted is outstanding.
void enable(bool counted);

}  // namespace vantello::SuddenTermination
