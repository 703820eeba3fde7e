#pragma once

/// How much a text insists on being spoken.
enum class Urgency {
    Routine,  ///< only the active clock speaks it
    Urgent    ///< any clock does
};
