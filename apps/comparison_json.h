#pragma once

#include <QJsonObject>

#include "inspection/comparison.h"

// What the report tells of a comparison: lengths in mm, volumes in cm³.
QJsonObject ComparisonJson(const Inspection::Comparison& comparison);
