#pragma once
// The forms of the dialog's opening built by Qt alone: the same uic forms, style sheet,
// parenting and stacking as the opening of a switch's first page, with no device, query,
// record or page logic. What one build costs is what Qt (and the toolkit's widgets the
// forms are made of) spends on those forms; the rest of an opening is the module's own or
// the network's.

namespace velmora::bench {

// Builds the forms of one opening and destroys them again, as the dialog's constructor and
// destructor do. Needs a QApplication and the module's resources (velmora::initResources).
void buildBareForms();

// Registers the benchmark "QtForms": buildBareForms() in a loop, in milliseconds of wall
// clock (the CPU time beside it).
void registerQtFormsBenchmark();

} // namespace velmora::bench
