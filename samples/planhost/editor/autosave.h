#pragma once

#include "plan_document.h"

#include <filesystem>
#include <vector>

/// Keeps what is not saved yet in a file beside the plan, so that a crash takes a minute's work at most. The file goes when
/// the plan is saved or left; one that is there when a plan is opened is what a crash has left.
class Autosave {
public:
    /// folder: for plans that have no file yet.
    explicit Autosave(std::filesystem::path folder) : folder_(std::move(folder)) {}

    /// Where the state of a plan is kept; plan: empty for a new one.
    std::filesystem::path FileFor(const std::filesystem::path& plan) const;
    /// Keeps the state if it has changed since the last time. False when it cannot be written.
    bool Keep(const PlanDocument& document);
    /// Nothing is left to be kept.
    void Discard();

private:
    std::filesystem::path folder_;
    std::filesystem::path kept_;
    unsigned state_ = 0;
    unsigned plan_ = 0;
};
