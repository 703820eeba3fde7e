# Copies the data folders that differ, keeping the time of each file: a user's file is merged with
# a default that is newer, so a copy must not look newer than its source.
file(COPY "${FROM}/" DESTINATION "${TO}")
