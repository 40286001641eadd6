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

    /// What an honest camera may do, or nothing, which is answered by false.
    bool tire();
    /// Every operation goes wrong now and then; that of observers only @p withObservers.
    void spoil(bool withObservers);
    /// One feature's range, entries, texts or access become odd.
    void distort();
    /// Another client writes something legal.
    void writeFromOutside();

    /// Empty when the page observes nothing now.
    std::string anyObservedFeature();

private:
    const std::string& anyFeature() { return m_random.pick(m_names); }
    void distortNumbers(const std::string& name);

    sim::Camera& m_camera;
    sim::FailureInjector& m_failures;
    Random& m_random;
    const std::vector<std::string> m_names;
};
