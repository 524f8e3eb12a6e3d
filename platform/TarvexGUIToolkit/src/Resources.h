#pragma once
// The toolkit's compiled-in images. A static library's resources are only registered when
// something references them, so every widget that uses them calls this first.

namespace TarvexGUIToolkit {
namespace details {

void InitToolkitResources();

// Resource paths of the toolkit's icons.
extern const char* const kPreviousPageIcon;
extern const char* const kCloseIcon;

} // namespace details
} // namespace TarvexGUIToolkit
