#!/bin/sh
# Stands in for tempolark-voice: has one voice, "Ann", and is killed while it speaks.
echo "voices QW5u"
while read -r word _; do
    if [ "$word" = say ]; then
        echo speaking
        kill -SEGV $$
    fi
done
