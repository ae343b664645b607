#include "inspection/section.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <iterator>
#include <string_view>
#include <vector>

#include "platform/numbers.h"

namespace Inspection {

namespace {

// All in mm on paper.
constexpr double kMargin = 8;
constexpr double kTextHeight = 3.5;
// On the safe side of what fonts need for a digit.
constexpr double kCharacter = 2.3;
constexpr double kRow = 5;
// From the part to its dimension line; the part in which leaders run aslant.
constexpr double kAway = 5;
constexpr double kAslant = 5;
constexpr double kTick = 1;

// In columns. A flat place on top of an arc, where both neighbours are but one unit off, is no
// cylinder unless it is long.
constexpr int kShortestCylinder = 10;
constexpr int kShortestBetweenArcs = 50;

struct Label {
  // What it belongs to, and where its middle comes to stand.
  double at = 0;
  double place = 0;
  // What it takes of its row.
  double width = 0;
  std::string text;
};

// Moves labels that are in order apart until none overlaps, and each no further than need be:
// neighbours that touch move as one, around the middle of what they belong to.
void Spread(std::vector<Label>& labels) {
  struct Group {
    std::size_t count = 0;
    // Sums of where the labels' middles should be, if the first one's were there.
    double sum = 0;
    [[nodiscard]] double Place() const { return sum / static_cast<double>(count); }
  };
  std::vector<Group> groups;
  std::vector<double> offsets;
  double offset = 0;
  for (std::size_t i = 0; i < labels.size(); ++i) {
    if (i > 0) offset += (labels[i - 1].width + labels[i].width) / 2;
    offsets.push_back(offset);
    groups.push_back({1, labels[i].at - offset});
    while (groups.size() > 1 && groups[groups.size() - 2].Place() > groups.back().Place()) {
      const Group last = groups.back();
      groups.pop_back();
      groups.back().count += last.count;
      groups.back().sum += last.sum;
    }
  }
  std::size_t i = 0;
  for (const Group& group : groups) {
    for (std::size_t k = 0; k < group.count; ++k, ++i) labels[i].place = group.Place() + offsets[i];
  }
}

std::string Number(double value) {
  return NumberText(std::nearbyint(value * 100) / 100);
}

// Elements of a drawing, and the area that they take.
class Drawing {
 public:
  struct Point {
    double x = 0;
    double y = 0;
  };

  void Line(std::string_view kind, Point from, Point to) {
    Take(from, kMargin);
    Take(to, kMargin);
    svg_ += "<line class=\"" + std::string(kind) + "\" x1=\"" + Number(from.x) + "\" y1=\"" +
            Number(from.y) + "\" x2=\"" + Number(to.x) + "\" y2=\"" + Number(to.y) + "\"/>\n";
  }

  // Closed polygons in one path.
  void Outline(const std::vector<std::vector<Point>>& bodies) {
    svg_ += "<path class=\"part\" d=\"";
    for (const std::vector<Point>& body : bodies) {
      char command = 'M';
      for (const Point& point : body) {
        Take(point, kMargin);
        svg_ += command + Number(point.x) + ' ' + Number(point.y);
        command = 'L';
      }
      svg_ += 'Z';
    }
    svg_ += "\"/>\n";
  }

  // Its middle at its place, on a line at y. Lines that run through it are broken.
  void Text(const Label& label, double y) {
    Take({label.place - label.width / 2, y}, kMargin);
    Take({label.place + label.width / 2, y}, kMargin);
    const double width = label.width - kCharacter / 2;
    texts_ += "<rect x=\"" + Number(label.place - width / 2) + "\" y=\"" + Number(y - kTextHeight) +
              "\" width=\"" + Number(width) + "\" height=\"" + Number(kTextHeight * 1.2) + "\"/>\n";
    texts_ += "<text x=\"" + Number(label.place) + "\" y=\"" + Number(y) +
              "\" text-anchor=\"middle\">" + label.text + "</text>\n";
  }

  // The same upwards from y.
  void UprightText(const Label& label, double y) {
    Take({label.place, y - static_cast<double>(label.text.size()) * kCharacter}, kMargin);
    const std::string x = Number(label.place + kTextHeight / 3);
    texts_ += "<text transform=\"translate(" + x + ' ' + Number(y) + ") rotate(-90)\">" +
              label.text + "</text>\n";
  }

  [[nodiscard]] std::string Svg() const {
    const std::string width = Number(right_ - left_);
    const std::string height = Number(bottom_ - top_);
    // White paper, also where the viewer is dark.
    const std::string paper = "<rect x=\"" + Number(left_) + "\" y=\"" + Number(top_) +
                              "\" width=\"" + width + "\" height=\"" + height + "\"/>\n";
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + width + "mm\" height=\"" +
           height + "mm\" viewBox=\"" + Number(left_) + ' ' + Number(top_) + ' ' + width + ' ' +
           height + "\">\n" + std::string(kHead) + paper + svg_ + texts_ + "</svg>\n";
  }

 private:
  static constexpr std::string_view kHead =
      R"svg(<style>
line { stroke: black; stroke-width: 0.18 }
.axis { stroke-dasharray: 6 1 1 1; stroke-width: 0.25 }
.part { fill: url(#hatch); stroke: black; stroke-width: 0.5; stroke-linejoin: round }
rect { fill: white }
text { font: 3.5px sans-serif }
</style>
<defs><pattern id="hatch" width="2.5" height="2.5" patternUnits="userSpaceOnUse"
 patternTransform="rotate(45)"><line x1="0" y1="0" x2="0" y2="2.5"/></pattern></defs>
)svg";

  void Take(Point point, double margin) {
    left_ = std::min(left_, point.x - margin);
    right_ = std::max(right_, point.x + margin);
    top_ = std::min(top_, point.y - margin);
    bottom_ = std::max(bottom_, point.y + margin);
  }

  std::string svg_;
  // In front of all else.
  std::string texts_;
  double left_ = 0;
  double right_ = 0;
  double top_ = 0;
  double bottom_ = 0;
};

// Z = 0 is at x = 0, the axis at y = 0.
double X(int column) {
  return -column / 10.0;
}

double Y(int radius) {
  return radius / 10.0;
}

// The bodies of a part that may be cut through, from the free end on.
std::vector<std::vector<Frustum>> Bodies(const std::vector<Frustum>& pieces) {
  std::vector<std::vector<Frustum>> bodies;
  int reached = 0;
  for (const Frustum& piece : pieces) {
    if (!piece.IsEmpty()) {
      if (reached == 0 || piece.nearRadius == 0) bodies.emplace_back();
      bodies.back().push_back(piece);
    }
    reached = piece.farRadius;
  }
  return bodies;
}

std::vector<Drawing::Point> OutlineOf(const std::vector<Frustum>& body) {
  std::vector<Drawing::Point> upper;
  const auto add = [&](int column, int radius) {
    const Drawing::Point point{X(column), -Y(radius)};
    if (upper.empty() || upper.back().x != point.x || upper.back().y != point.y) {
      upper.push_back(point);
    }
  };
  for (const Frustum& piece : body) {
    add(piece.nearColumn, piece.nearRadius);
    add(piece.farColumn, piece.farRadius);
  }
  std::vector<Drawing::Point> outline = upper;
  std::transform(upper.rbegin(), upper.rend(), std::back_inserter(outline),
                 [](const Drawing::Point& point) {
                   return Drawing::Point{point.x, -point.y};
                 });
  return outline;
}

// Those worth a dimension, from left to right.
std::vector<Frustum> Cylinders(const std::vector<std::vector<Frustum>>& bodies) {
  std::vector<Frustum> cylinders;
  for (const std::vector<Frustum>& body : bodies) {
    for (std::size_t i = 0; i < body.size(); ++i) {
      const Frustum& piece = body[i];
      const bool isBetweenArcs = i > 0 && i + 1 < body.size() &&
                                 std::abs(body[i - 1].farRadius - piece.nearRadius) <= 1 &&
                                 std::abs(body[i + 1].nearRadius - piece.farRadius) <= 1;
      const int shortest = isBetweenArcs ? kShortestBetweenArcs : kShortestCylinder;
      if (piece.IsCylinder() && piece.farColumn - piece.nearColumn >= shortest) {
        cylinders.push_back(piece);
      }
    }
  }
  std::reverse(cylinders.begin(), cylinders.end());
  return cylinders;
}

double Middle(int nearColumn, int farColumn) {
  return (X(nearColumn) + X(farColumn)) / 2;
}

// Above the part: a leader from each cylinder to its diameter, which stands upright.
void DrawDiameters(Drawing& drawing, const std::vector<Frustum>& cylinders, double top) {
  std::vector<Label> labels;
  for (const Frustum& piece : cylinders) {
    const std::string text = "Ø" + Millimetres(2 * piece.nearRadius);
    labels.push_back({Middle(piece.nearColumn, piece.farColumn), 0, kRow, text});
  }
  Spread(labels);
  for (std::size_t i = 0; i < labels.size(); ++i) {
    const Label& label = labels[i];
    const double surface = -Y(cylinders[i].nearRadius);
    const double bend = top - kAway;
    drawing.Line("thin", {label.at, surface}, {label.at, bend});
    for (const double side : {-0.5, 0.5}) {
      drawing.Line("thin", {label.at, surface}, {label.at + side, surface - 2});
    }
    drawing.Line("thin", {label.at, bend}, {label.place, bend - kAslant});
    drawing.UprightText(label, bend - kAslant - kTick);
  }
}

// A line with a stroke at both ends.
void DrawDimensionLine(Drawing& drawing, double from, double to, double y) {
  drawing.Line("thin", {from, y}, {to, y});
  for (const double x : {from, to}) {
    drawing.Line("thin", {x - kTick, y + kTick}, {x + kTick, y - kTick});
  }
}

// Below the part: the lengths of stretches that don't overlap, from left to right, on one line.
// Returns where the next one may follow.
double DrawLengths(Drawing& drawing, const std::vector<Frustum>& spans, double y) {
  std::vector<Label> labels;
  for (const Frustum& span : spans) {
    const std::string text = Millimetres(span.farColumn - span.nearColumn);
    const double width = (static_cast<double>(text.size()) + 1) * kCharacter;
    labels.push_back({Middle(span.nearColumn, span.farColumn), 0, width, text});
    for (const auto& [column, radius] : {std::array{span.nearColumn, span.nearRadius},
                                         std::array{span.farColumn, span.farRadius}}) {
      drawing.Line("thin", {X(column), Y(radius) + kTick}, {X(column), y + kTick});
    }
    DrawDimensionLine(drawing, X(span.farColumn), X(span.nearColumn), y);
  }
  Spread(labels);
  for (const Label& label : labels) {
    if (std::abs(label.place - label.at) > kTick / 2)
      drawing.Line("thin", {label.at, y}, {label.place, y + kAslant});
    drawing.Text(label, y + kAslant + kTextHeight);
  }
  return y + 2 * kAslant + kTextHeight;
}

}  // namespace

std::string SectionSvg(const Profile& profile) {
  Drawing drawing;
  const std::vector<std::vector<Frustum>> bodies = Bodies(PartShape(profile));
  std::vector<std::vector<Drawing::Point>> outlines;
  std::vector<Frustum> lengths;
  int largest = 0;
  for (const std::vector<Frustum>& body : bodies) {
    outlines.push_back(OutlineOf(body));
    for (const Frustum& piece : body) {
      largest = std::max({largest, piece.nearRadius, piece.farRadius});
    }
    const Frustum& first = body.front();
    const Frustum& last = body.back();
    lengths.insert(lengths.begin(),
                   {first.nearColumn, last.farColumn, first.nearRadius, last.farRadius});
  }
  drawing.Outline(outlines);
  for (const Frustum& length : lengths) {
    drawing.Line("axis", {X(length.farColumn) - kAway, 0}, {X(length.nearColumn) + kAway, 0});
  }
  const std::vector<Frustum> cylinders = Cylinders(bodies);
  DrawDiameters(drawing, cylinders, -Y(largest));
  std::vector<Frustum> shorter = cylinders;
  std::erase_if(shorter, [&](const Frustum& piece) {
    return std::any_of(lengths.begin(), lengths.end(), [&](const Frustum& body) {
      return body.nearColumn == piece.nearColumn && body.farColumn == piece.farColumn;
    });
  });
  double y = Y(largest) + kAway;
  if (!shorter.empty()) y = DrawLengths(drawing, shorter, y);
  DrawLengths(drawing, lengths, y);
  return drawing.Svg();
}

}  // namespace Inspection
