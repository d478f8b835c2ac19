#pragma once

#include "screens/controls/ControlCheck.h"
#include "screens/controls/Visitor.h"

namespace norlaplan::testing {

inline constexpr const char* kSystems[] = {"US", "METRIC"};

/// What differs from the rows when a scene is played in a unit system.
inline QStringList differencesIn(const ControlTable& table, const Scene& scene, const std::string& system) {
    Visitor program(system, scene.keywords);
    scene.route(program);
    if (program.inFront() != scene.form)
        return {QString::fromStdString(program.inFront() + " is in front: " + program.lastMessage().prompt)};
    return ControlCheck(*program.screens.current(), table.rows, factsOf(scene, system)).differences();
}

/// The same for all scenes of one form, for the test of that form: each difference behind its scene.
inline QStringList controlsThatDiffer(const std::string& form, const ControlTable& table) {
    QStringList found;
#ifdef NORLAPLAN_SANITIZE
    // The test of all forms plays these scenes too: the sanitizers watch them there.
    return found;
#endif
    int scenes = 0;
    for (const Scene& scene : table.scenes) {
        if (scene.form != form) continue;
        ++scenes;
        for (const char* const system : kSystems) {
            for (const QString& difference : differencesIn(table, scene, system))
                found << QString::fromStdString(scene.name) + ", " + system + ": " + difference;
        }
    }
    if (scenes == 0) found << "no scene";
    return found;
}

}  // namespace norlaplan::testing
