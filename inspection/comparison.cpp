#include "inspection/comparison.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>

#include "platform/numbers.h"

namespace Inspection {

namespace {

// A rapid move through the part leaves a stretch a tooth: of more than this, only the first are
// told.
constexpr std::size_t kMostStretches = 12;
constexpr std::size_t kFirstStretches = 10;

void Add(Deviation& side, int radius, int column, double volume) {
  if (radius > side.radius) {
    side.radius = radius;
    side.column = column;
  }
  side.volume += volume;
}

// A deviation outside the tolerance, at the column behind the last one or further on.
void AddOutside(std::vector<Stretch>& outside, int column, int deviation) {
  const bool goesOn = !outside.empty() && outside.back().farColumn == column - 1 &&
                      (outside.back().deviation > 0) == (deviation > 0);
  if (!goesOn) outside.push_back({column, column, deviation});
  Stretch& stretch = outside.back();
  stretch.farColumn = column;
  if (std::abs(deviation) > std::abs(stretch.deviation)) stretch.deviation = deviation;
}

std::string BilletNote(const char* size, int part, int reference) {
  return std::string("The billet's ") + size + " is " + Millimetres(part) +
         " mm, the reference's is " + Millimetres(reference) + " mm.";
}

std::vector<std::string> BilletNotes(const Part& part, const Part& reference) {
  std::vector<std::string> notes;
  const auto length = [](const Part& of) { return static_cast<int>(of.profile.size()) - 1; };
  if (length(part) != length(reference)) {
    notes.push_back(BilletNote("length", length(part), length(reference)));
  }
  if (part.billetDiameter && reference.billetDiameter &&
      *part.billetDiameter != *reference.billetDiameter) {
    notes.push_back(BilletNote("diameter", *part.billetDiameter, *reference.billetDiameter));
  }
  return notes;
}

std::string SideText(const Deviation& side) {
  if (side.radius == 0) return "nothing";
  return Millimetres(side.radius) + " mm at most, at Z " + ZText(side.column) + "; " +
         NumberText(CubicCentimetres(side.volume)) + " cm³";
}

std::string StretchText(const Stretch& stretch) {
  const bool isOne = stretch.nearColumn == stretch.farColumn;
  return "Z " + ZText(stretch.nearColumn) + (isOne ? "" : " to " + ZText(stretch.farColumn)) +
         ": " + (isOne ? "" : "up to ") + Millimetres(std::abs(stretch.deviation)) + " mm too " +
         (stretch.deviation > 0 ? "large" : "small");
}

}  // namespace

int RadiusAt(const Profile& profile, int column) {
  const auto i = static_cast<std::size_t>(column);
  return i < profile.size() ? profile[i].Radius : 0;
}

Comparison Compare(const Part& part, const Part& reference, double tolerance) {
  Comparison result{tolerance, {}, {}};
  const auto columns = static_cast<int>(std::max(part.profile.size(), reference.profile.size()));
  for (int column = 0; column < columns; ++column) {
    const int deviation = RadiusAt(part.profile, column) - RadiusAt(reference.profile, column);
    const double volume = column == 0 ? 0
                                      : Volume(PieceAt(part.profile, column)) -
                                            Volume(PieceAt(reference.profile, column));
    Add(result.standing, deviation, column, std::max(volume, 0.0));
    Add(result.cutAway, -deviation, column, std::max(-volume, 0.0));
    // Both are the doubles next to what the user reads, so 0.1 is within 0.1.
    if (std::abs(deviation) / 10.0 > tolerance) AddOutside(result.outside, column, deviation);
  }
  result.notes = BilletNotes(part, reference);
  return result;
}

std::string ComparisonText(const Comparison& comparison, const std::string& part,
                           const std::string& reference) {
  std::string text;
  const auto add = [&](const std::string& line) { text += part + ": " + line + '\n'; };
  for (const std::string& note : comparison.notes) add("note: " + note);
  if (comparison.standing.radius == 0 && comparison.cutAway.radius == 0) {
    add("the same part as " + reference);
    return text;
  }
  const std::string tolerance = NumberText(comparison.tolerance) + " mm on the radius";
  add(comparison.IsWithin() ? "the same part as " + reference + " within " + tolerance
                            : "differs from " + reference + " by more than " + tolerance);
  add("left standing: " + SideText(comparison.standing));
  add("cut away: " + SideText(comparison.cutAway));
  const std::size_t stretches = comparison.outside.size();
  const std::size_t told = stretches > kMostStretches ? kFirstStretches : stretches;
  for (std::size_t i = 0; i < told; ++i) add(StretchText(comparison.outside[i]));
  if (told < stretches) {
    add("and " + DecimalText(static_cast<int>(stretches - told)) + " more such stretches");
  }
  return text;
}

double CubicCentimetres(double volume) {
  return std::nearbyint(volume) / 1000;
}

}  // namespace Inspection
