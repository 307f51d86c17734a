# Sourced by the tests of the gallery, after lib.sh: a small library with names
# that want to break out of a page or a command line, and a photograph.
make_data
make_grey grain.png 61 47
import() { "$TARNWICK" texture import grain.png -o "data/$1" "${@:2}" || fail "cannot make $1"; }
import Oak.twk --set-id 9 --effects Woods
import Iron.twk --set-id 4 --effects Metals,Industrial
printf '9\tTimber Yard\n4\tForge & <Sons>\n' >"data/Texture Sets.txt"

evil='O'\''Hara & "Sons" <b>bold<'
mkdir -p data/Presets/Basic/Wood
preset "data/Presets/Basic/$evil.twkpst" '1NFW Oak.twk ;' '1cSW 30 ;'
preset 'data/Presets/Basic/Wood/Café $(touch hacked).twkpst' '1NFW Iron.twk ;' '1pTW 1 ;'
preset 'data/Presets/Basic/--help.twkpst' '1tIW 150 ;'
preset 'data/Presets/Basic/A b.twkpst' '1cSW 90 ;'
preset 'data/Presets/Basic/a-b.twkpst' '1cSW 150 ;'
# A folder called "<" makes "</script>..." of it.
mkdir 'data/Presets/Basic/<'
preset 'data/Presets/Basic/</script><script>hacked=1;<!--.twkpst' '1tIW 20 ;'
preset 'data/Presets/User/A b.twkpst' '1cSW 60 ;'
preset data/Presets/Wash/Thin.twkpst '1NFW Iron.twk ;' '1pTW 2 ;'
preset data/Presets/Surface/Hide.twkpst 'nOfS 1 ;' '1NFS Oak.twk ;' '1hDS 90 ;'
preset data/Presets/Background/Pine.twkpst 'nOkB 1 ;' 'NFkB Oak.twk ;'
preset data/Presets/Colors/Dawn.twkpst ';' 'rgtC Red Tones|Rust Tones ;' 'lCiH 1 ;' 'lCdM 2 ;' \
  'lCdS 3 ;'

make_rgb photo 960 640
vips jpegsave photo.v photo.jpg --profile p3
exiftool -q -overwrite_original -Artist=Somebody -GPSLatitude=50 -GPSLatitudeRef=N photo.jpg
