// Built into every executable of the sanitizer build. Qt's offscreen platform, fontconfig
// and log4cxx keep their screens, caches and loggers until exit; those are not leaks of
// ours. Built in rather than read from a file, so that child processes started by tests
// (the emulator, the art generator, the viewer) and CTest's listing runs carry it too.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libqoffscreen\nleak:QScreen\nleak:libfontconfig\nleak:libQt5Gui\n"
           "leak:libQt5Core\nleak:libQt5Widgets\nleak:liblog4cxx\n";
}
