#pragma once

namespace ORV {

/// The base that marks the holder of the drawing attributes; it has no data.
class GraphAttr {};

} // namespace ORV
