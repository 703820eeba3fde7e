#pragma once

/// How much a text insists on being spoken. A clock that is muted speaks neither.
enum class Urgency {
    Routine,  ///< only the active clock speaks it
    Urgent    ///< any clock does
};
