#!/usr/bin/env bash
# Redraws the project's icons (needs ImageMagick). The PNGs are committed; run this only to change them.
set -euo pipefail
cd "$(dirname "$0")/../resources"
mkdir -p appicons
S=64
c() { convert -size ${S}x${S} xc:none "$@"; }
# record button, idle and active
c -fill '#7a7a7a' -draw "circle 32,32 32,8" -fill '#d0d0d0' -draw "circle 32,32 32,18" appicons/recording.png
c -fill '#ed6e00' -draw "circle 32,32 32,8" -fill '#ff2a1a' -draw "circle 32,32 32,18" appicons/recording_active.png
# gear: a toothed ring
c -fill '#9a9a9a' -draw "circle 32,32 32,12" \
  -draw "rectangle 28,4 36,60" -draw "rectangle 4,28 60,36" \
  -draw "polygon 12,17 17,12 52,47 47,52" -draw "polygon 47,12 52,17 17,52 12,47" \
  -fill none -stroke none -fill '#2b2b2b' -draw "circle 32,32 32,24" appicons/gear.png
# folder with a plus
c -fill '#c9a227' -draw "polygon 6,16 24,16 28,22 58,22 58,54 6,54" \
  -fill white -draw "rectangle 29,28 35,50" -draw "rectangle 21,36 43,42" appicons/addfiles.png
# plus and minus for list buttons
c -fill '#9a9a9a' -draw "rectangle 28,10 36,54" -draw "rectangle 10,28 54,36" appicons/add.png
c -fill '#9a9a9a' -draw "rectangle 10,28 54,36" appicons/remove.png
# streaming: an antenna with waves
c -fill '#7a7a7a' -draw "circle 32,32 32,26" -fill none -stroke '#7a7a7a' -strokewidth 5 \
  -draw "arc 14,14 50,50 -50,50" -draw "arc 14,14 50,50 130,230" appicons/streaming.png
c -fill '#ed6e00' -draw "circle 32,32 32,26" -fill none -stroke '#ed6e00' -strokewidth 5 \
  -draw "arc 14,14 50,50 -50,50" -draw "arc 14,14 50,50 130,230" appicons/streaming_active.png
# service badges: a rounded square in a colour and a letter
badge() { convert -size ${S}x${S} xc:none -fill "$2" -draw "roundrectangle 2,2 61,61 12,12" \
  -fill white -font DejaVu-Sans-Bold -pointsize 36 -gravity center -annotate +0+2 "$3" "$1"; }
badge youtube.png '#d4281d' 'Y'
badge facebook.png '#3b5a98' 'f'
badge twitch.png '#6441a4' 'T'
badge ustream.png '#2d6aa8' 'U'
badge dailymotion.png '#1d2a40' 'D'
badge hitbox.png '#7cb342' 'S'
badge custom.png '#5f6b73' 'C'
badge service.png '#8a8a8a' 'S'
# eye, for the buttons that reveal a hidden text
c -fill none -stroke '#9a9a9a' -strokewidth 5 -draw "ellipse 32,32 26,15 0,360" -fill '#9a9a9a' -stroke none -draw "circle 32,32 32,22" appicons/eye.png
# refresh: an open ring with an arrow head
c -fill none -stroke '#9a9a9a' -strokewidth 6 -draw "ellipse 32,32 20,20 40,315" \
  -stroke none -fill '#9a9a9a' -draw "polygon 53,8 36,22 56,28" appicons/refresh.png
# output: a monitor on its stand
c -fill '#7a7a7a' -draw "roundrectangle 4,8 60,46 4,4" -fill '#d0d0d0' -draw "rectangle 9,13 55,41" \
  -fill '#7a7a7a' -draw "rectangle 28,46 36,54" -draw "rectangle 18,54 46,58" appicons/output.png
# chat: a speech bubble in the service's colour with three dots
bubble() { c -fill "$2" -draw "roundrectangle 4,8 60,46 10,10" -draw "polygon 14,44 14,58 28,44" \
  -fill white -draw "circle 20,27 20,22" -draw "circle 32,27 32,22" -draw "circle 44,27 44,22" "$1"; }
bubble twitchchat.png '#6441a4'
bubble youtubechat.png '#d4281d'
