#pragma once

namespace bornika {

class Trace;

/// The table of events of a viewer form just made: which change of which control runs what.
void BrancherTrace(Trace& trace);

}  // namespace bornika
