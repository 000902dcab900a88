#pragma once

namespace ORV {

/// What the file classes have in common: so far, nothing.
class FileAttr {};

} // namespace ORV
