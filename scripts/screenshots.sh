#!/bin/sh
# Every screen in both languages and the five themes, and the Italian light theme at 2x scale,
# rendered offscreen into the folder given (default: screenshots/).
set -eu
folder=${1:-screenshots}
app=${VANTELLO:-build/app/vantello}
for language in it en; do
  for theme in system light dark solarizedLight solarizedDark; do
    QT_QPA_PLATFORM=offscreen "$app" --screenshot "$folder" --language "$language" --theme "$theme"
  done
done
QT_QPA_PLATFORM=offscreen "$app" --screenshot "$folder/2x" --language it --theme light --scale 2
echo "screenshots in $folder"
