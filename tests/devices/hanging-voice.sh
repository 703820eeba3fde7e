#!/bin/sh
# Stands in for tempolark-voice: has one voice, "Ann", and never ends a text.
echo "voices QW5u"
while read -r word _; do
    [ "$word" = say ] && echo speaking
done
