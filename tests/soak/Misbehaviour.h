#pragma once

#include "Random.h"

#include "simulator/Camera.h"

#include <string>
#include <vector>

/// What a camera of these sessions does wrong, all of it from the seed.
class Misbehaviour
{
public:
    Misbehaviour(sim::Camera& camera, Random& random);

    /// What an honest camera may do, or nothing, which is answered by false: some writes or reads
    /// are refused, or reads of one feature take their time and fail for a while.
    bool tire();
    /// Every operation goes wrong now and then, in every way but the loss of the camera.
    /// Registering and unregistering are left alone, unless @p withObservers.
    void spoil(bool withObservers);
    /// Something about one feature becomes odd: its range, entries, texts or access.
    void distort();
    /// Another client writes something legal, as far as the feature has legal values.
    void writeFromOutside();

    /// Empty when the page observes nothing now.
    std::string anyObservedFeature();

private:
    const std::string& anyFeature() { return m_random.pick(m_names); }
    void slowOneDown();
    void distortNumbers(const std::string& name);
    void distortDescription(const std::string& name);

    sim::Camera& m_camera;
    Random& m_random;
    const std::vector<std::string> m_names;
};
