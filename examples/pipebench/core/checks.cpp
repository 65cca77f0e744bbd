#include "core/checks.h"

#include "core/results.h"
#include "ids.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace pipebench {

// Where they touch in water, the baser metal corrodes. In the order of kMaterials; plastic has
// none.
static constexpr std::array<int, kMaterials.size()> kNobility = {1, 3, 4, 0, 1};

static bool Corrode(const Pipe& pipe, const Pipe& next)
{
    const int one = kNobility[pipe.material], other = kNobility[next.material];
    return one != 0 && other != 0 && std::abs(one - other) > 1;
}

static bool IsStep(const Pipe& pipe, const Pipe& next)
{
    const auto [least, most] = std::minmax(pipe.diameter, next.diameter);
    return most > kGreatestStep * least;
}

// "P-101 (3.2 m/s)"
static std::string WithVelocity(const CLanguage& language, const Pipe& pipe, double velocity,
                                const Settings& settings)
{
    return pipe.name + " (" + ValueWithUnit(language, Quantity::Velocity, velocity, settings) + ')';
}

static void CheckPipe(const CLanguage& language, const Pipe& pipe, const Settings& settings,
                      std::vector<Fault>& warnings)
{
    const double velocity = ComputeFlow(ProposeFlow(settings.flow, pipe)).velocity;
    if (velocity > kFastest)
        warnings.push_back({IDS_TOO_FAST, WithVelocity(language, pipe, velocity, settings)});
    if (velocity < kSlowest)
        warnings.push_back({IDS_TOO_SLOW, WithVelocity(language, pipe, velocity, settings)});
    if (pipe.pricePerMetre == 0)
        warnings.push_back({IDS_NO_PRICE, pipe.name});
}

static void CheckJoint(const Pipe& pipe, const Pipe& next, std::vector<Fault>& warnings)
{
    const std::string joint = pipe.name + " \226 " + next.name;
    if (IsStep(pipe, next))
        warnings.push_back({IDS_GREAT_STEP, joint});
    if (Corrode(pipe, next))
        warnings.push_back({IDS_CORROSION, joint});
}

std::vector<Fault> CheckPipes(const CLanguage& language, const std::vector<Pipe>& pipes,
                              const Settings& settings)
{
    std::vector<Fault> warnings;
    for (std::size_t i = 0; i < pipes.size(); ++i) {
        CheckPipe(language, pipes[i], settings, warnings);
        if (i + 1 < pipes.size())
            CheckJoint(pipes[i], pipes[i + 1], warnings);
    }
    return warnings;
}

}  // namespace pipebench
