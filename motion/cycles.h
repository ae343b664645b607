#pragma once

// The executors that are made of several moves. All write the registers and the stock, and yield.
namespace GCodes {

// Home by way of the target: a feed move there, then a rapid move to a place that depends on the
// simulation area and the tool alone.
void ExecuteG28();

// Turning cycle: rapid in X, cut along Z, feed out in X, rapid back. A given R makes it a taper.
// The tool ends where it began; the target registers are left as they were. Clears RadiusGiven.
void ExecuteG90();

// Facing cycle: the same with the axes' roles exchanged.
void ExecuteG94();

}  // namespace GCodes
