#include "apps/comparison_json.h"

#include <QJsonArray>

namespace {

// Of stock units.
double Millimetres(int tenths) {
  return tenths / 10.0;
}

// Where nothing deviates there is no place either.
QJsonObject SideJson(const Inspection::Deviation& side) {
  QJsonObject object{{"deviation_mm", Millimetres(side.radius)},
                     {"volume_cm3", Inspection::CubicCentimetres(side.volume)}};
  if (side.radius != 0) object["z_mm"] = Millimetres(-side.column);
  return object;
}

}  // namespace

QJsonObject ComparisonJson(const Inspection::Comparison& comparison) {
  QJsonArray outside;
  for (const auto& [nearColumn, farColumn, deviation] : comparison.outside) {
    outside.append(QJsonObject{{"from_z_mm", Millimetres(-nearColumn)},
                               {"to_z_mm", Millimetres(-farColumn)},
                               {"deviation_mm", Millimetres(deviation)}});
  }
  QJsonArray notes;
  for (const std::string& note : comparison.notes) notes.append(QString::fromStdString(note));
  return {{"tolerance_mm", comparison.tolerance},
          {"within", comparison.IsWithin()},
          {"standing", SideJson(comparison.standing)},
          {"cut_away", SideJson(comparison.cutAway)},
          {"outside", outside},
          {"notes", notes}};
}
