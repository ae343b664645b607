#pragma once

#include <QByteArray>

#include "inspection/comparison.h"

// The section of a part over that of its reference, as a PNG file's bytes: what is left standing
// and what was cut away by colour and by hatch, the stretches outside the tolerance, legend, and a
// scale in mm. Needs an application that has fonts. Throws std::bad_alloc.
QByteArray DifferencePng(const Inspection::Profile& part, const Inspection::Profile& reference,
                         const Inspection::Comparison& comparison);
