#pragma once

// The executors of single moves. They take the registers of ModCNC, fill PathPoints, play them, and
// leave CurrentX and CurrentZ at the target, whether or not the move was played to its end.
// All write PathPoints and the stock, and yield.
namespace GCodes {

// Rapid move: each axis goes one unit a step until it is home, so a 45 degree leg comes first.
// Without a distance it plays the one point where the tool stands.
void ExecuteG00();

// Straight move, one point for each unit of the longer axis. Without a distance it does nothing.
// Writes TaperCut.
void ExecuteG01();

// Arcs in the plane of the screen (Z to the right, X up), clockwise and counter-clockwise, by the
// radius of the R word, else by that of I and K. A negative R takes the long way round. A radius
// too small for the chord is told in a message box, and nothing moves. Clear RadiusGiven.
void ExecuteG02();
void ExecuteG03();

}  // namespace GCodes
