#include "core/flow/pipe_flow.h"

#include <cmath>
#include <numbers>

namespace pipebench {

static constexpr double kGravity = 9.80665;  // m/s2
static constexpr double kLastLaminar = 2300;

// 1/sqrt(f) = -2 log10(e/3.7 + 2.51 / (Re sqrt(f))). Each round reduces the error to a fifth at
// least, so that it is gone after twenty.
static double TurbulentFactor(double reynolds, double relativeRoughness)
{
    double root = 8;  // 1/sqrt(f)
    for (int round = 0; round < 20; ++round)
        root = -2 * std::log10(relativeRoughness / 3.7 + 2.51 * root / reynolds);
    return 1 / (root * root);
}

double FrictionFactor(double reynolds, double relativeRoughness)
{
    if (reynolds <= 0)
        return 0;
    return reynolds <= kLastLaminar ? 64 / reynolds : TurbulentFactor(reynolds, relativeRoughness);
}

FlowResult ComputeFlow(const FlowCase& flowCase)
{
    const double diameter = flowCase.diameter / 1000;  // m
    const double area = std::numbers::pi / 4 * diameter * diameter;
    const double velocity = flowCase.flow / 3600 / area;
    const double reynolds = flowCase.density * velocity * diameter / (flowCase.viscosity / 1000);
    const double friction = FrictionFactor(reynolds, flowCase.roughness / flowCase.diameter);
    const double dynamicPressure = flowCase.density / 2 * velocity * velocity;  // Pa
    const double drop = friction * flowCase.length / diameter * dynamicPressure;
    return {velocity, reynolds, friction, drop / 1000, drop / (flowCase.density * kGravity)};
}

double SystemHead(FlowCase flowCase, double flow)
{
    flowCase.flow = flow;
    return flowCase.lift + ComputeFlow(flowCase).headLoss;
}

}  // namespace pipebench
