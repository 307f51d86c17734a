# The data folder has each folder that the window lists, loads and saves presets in, and
# a file somewhere in it: archives leave empty folders out, and nothing could be saved.
#
# Usage: folders_test.sh DATA_FOLDER
failures=0
for folder in Basic User Wash Surface Background Colors BackPalette; do
  if ! find "$1/Presets/$folder" -type f -size +0 -print | grep -q .; then
    echo "Presets/$folder: no file in it"
    failures=1
  fi
done
exit $failures
