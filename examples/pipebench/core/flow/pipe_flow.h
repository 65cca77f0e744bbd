// Steady flow of a liquid or gas of constant density through one pipe.
#pragma once

namespace pipebench {

struct FlowCase {
    double flow = 0;       // m3/h
    double diameter = 0;   // inside, mm
    double length = 0;     // m
    double roughness = 0;  // of the wall, mm
    double lift = 0;       // from the pipe's beginning up to its end, m
    double density = 0;    // kg/m3
    double viscosity = 0;  // dynamic, mPa s
};

struct FlowResult {
    double velocity;      // m/s
    double reynolds;      // number
    double friction;      // factor of Darcy and Weisbach
    double pressureDrop;  // by friction, kPa
    double headLoss;      // the same as a column of the fluid, m
};

FlowResult ComputeFlow(const FlowCase& flowCase);

// 64/Re in laminar flow (up to a Reynolds number of 2300), the formula of Colebrook and White
// above; 0 when nothing flows.
double FrictionFactor(double reynolds, double relativeRoughness);

// The head that the pipe asks of a pump at a flow, m: the lift and what friction takes.
double SystemHead(FlowCase flowCase, double flow);

}  // namespace pipebench
