// Present so that libvelmora links before its layers exist.
namespace velmora { const char* version() { return "1.0"; } }
