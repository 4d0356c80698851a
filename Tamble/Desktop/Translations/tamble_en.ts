<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ActivityRow</name>
    <message>
        <source>Show in folder</source>
        <translation>Show in folder</translation>
    </message>
    <message>
        <source>Undone</source>
        <translation>Undone</translation>
    </message>
    <message>
        <source>Undoing…</source>
        <translation>Undoing…</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Remove the new files and put the originals back</source>
        <translation>Remove the new files and put the originals back</translation>
    </message>
</context>
<context>
    <name>ActivityScreen</name>
    <message>
        <source>Activity</source>
        <translation>Activity</translation>
    </message>
    <message>
        <source>Every job can be undone as long as its files are as it left them.</source>
        <translation>Every job can be undone as long as its files are as it left them.</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Clear List</translation>
    </message>
    <message>
        <source>Nothing yet</source>
        <translation>Nothing yet</translation>
    </message>
    <message>
        <source>Finished jobs will show up here.</source>
        <translation>Finished jobs will show up here.</translation>
    </message>
    <message>
        <source>Clear the list?</source>
        <translation>Clear the list?</translation>
    </message>
    <message>
        <source>The jobs are forgotten and can&apos;t be undone any more. Your files stay as they are.</source>
        <translation>The jobs are forgotten and can&apos;t be undone any more. Your files stay as they are.</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>Keep it</translation>
    </message>
</context>
<context>
    <name>AddButton</name>
    <message>
        <source>Add more…</source>
        <translation>Add more…</translation>
    </message>
    <message>
        <source>Add files…</source>
        <translation>Add files…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Add folder…</translation>
    </message>
</context>
<context>
    <name>CategoryScreen</name>
    <message>
        <source>All tools</source>
        <translation>All tools</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sound</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Smart</source>
        <translation>Smart</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Pick one, then drop your files on it.</source>
        <translation>Pick one, then drop your files on it.</translation>
    </message>
    <message>
        <source>Shorten, shrink, convert.</source>
        <translation>Shorten, shrink, convert.</translation>
    </message>
    <message>
        <source>Record, trim, convert.</source>
        <translation>Record, trim, convert.</translation>
    </message>
    <message>
        <source>Convert, shrink, turn, clean.</source>
        <translation>Convert, shrink, turn, clean.</translation>
    </message>
    <message>
        <source>Combine, split, sign, lock.</source>
        <translation>Combine, split, sign, lock.</translation>
    </message>
    <message>
        <source>Text from pictures, sound and long documents.</source>
        <translation>Text from pictures, sound and long documents.</translation>
    </message>
    <message>
        <source>Names for many files at once.</source>
        <translation>Names for many files at once.</translation>
    </message>
</context>
<context>
    <name>ComparisonEditor</name>
    <message>
        <source>Divider between before and after</source>
        <translation>Divider between before and after</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Drop files in, pick what to do, done.</source>
        <translation>Drop files in, pick what to do, done.</translation>
    </message>
    <message>
        <source>Files and folders to open.</source>
        <translation>Files and folders to open.</translation>
    </message>
</context>
<context>
    <name>DocumentTrouble</name>
    <message>
        <source>This PDF is locked</source>
        <translation>This PDF is locked</translation>
    </message>
    <message>
        <source>This PDF can&apos;t be shown</source>
        <translation>This PDF can&apos;t be shown</translation>
    </message>
    <message>
        <source>Opening the PDF…</source>
        <translation>Opening the PDF…</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Password of the PDF</source>
        <translation>Password of the PDF</translation>
    </message>
    <message>
        <source>Open the PDF</source>
        <translation>Open the PDF</translation>
    </message>
</context>
<context>
    <name>DoneScreen</name>
    <message>
        <source>Undone</source>
        <translation>Undone</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Show in folder</translation>
    </message>
    <message>
        <source>Use for another tool</source>
        <translation>Use for another tool</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Remove the new files and put the originals back</source>
        <translation>Remove the new files and put the originals back</translation>
    </message>
    <message>
        <source>Back to the tool</source>
        <translation>Back to the tool</translation>
    </message>
    <message>
        <source>Start over</source>
        <translation>Start over</translation>
    </message>
    <message>
        <source>Couldn&apos;t be done</source>
        <translation>Couldn&apos;t be done</translation>
    </message>
    <message>
        <source>Try these again</source>
        <translation>Try these again</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Good to know</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Folders</translation>
    </message>
    <message>
        <source>Undoing…</source>
        <translation>Undoing…</translation>
    </message>
</context>
<context>
    <name>DropCatcher</name>
    <message>
        <source>A job is running</source>
        <translation>A job is running</translation>
    </message>
    <message>
        <source>Let go to add them</source>
        <translation>Let go to add them</translation>
    </message>
    <message>
        <source>Drop these once it is done.</source>
        <translation>Drop these once it is done.</translation>
    </message>
</context>
<context>
    <name>DropInvitation</name>
    <message>
        <source>Looking through it…</source>
        <translation>Looking through it…</translation>
    </message>
    <message>
        <source>Drop anything here</source>
        <translation>Drop anything here</translation>
    </message>
    <message>
        <source>Photos, videos, sound, PDFs, documents. Whole folders too. Everything happens on this computer.</source>
        <translation>Photos, videos, sound, PDFs, documents. Whole folders too. Everything happens on this computer.</translation>
    </message>
    <message>
        <source>Add files…</source>
        <translation>Add files…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Add folder…</translation>
    </message>
</context>
<context>
    <name>DropScreen</name>
    <message>
        <source>Looking through it…</source>
        <translation>Looking through it…</translation>
    </message>
    <message>
        <source>Start over</source>
        <translation>Start over</translation>
    </message>
    <message>
        <source>What would you like to do?</source>
        <translation>What would you like to do?</translation>
    </message>
    <message>
        <source>No tool works with these yet</source>
        <translation>No tool works with these yet</translation>
    </message>
    <message>
        <source>Everything else that fits</source>
        <translation>Everything else that fits</translation>
    </message>
    <message numerus="yes">
        <source>All %n tool(s)</source>
        <translation>
            <numerusform>All %Ln tool</numerusform>
            <numerusform>All %Ln tools</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Engine</name>
    <message>
        <source>“%1” is no longer there.</source>
        <translation>“%1” is no longer there.</translation>
    </message>
    <message>
        <source>“%1” changed while it was being worked on.</source>
        <translation>“%1” changed while it was being worked on.</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>“%1”: %2</translation>
    </message>
    <message>
        <source>Something unexpected went wrong: %1</source>
        <translation>Something unexpected went wrong: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t write down what would be changed: %1</source>
        <translation>Couldn&apos;t write down what would be changed: %1</translation>
    </message>
    <message>
        <source>This file couldn&apos;t get its old name back; it is at “%1”. Undo tries it again.</source>
        <translation>This file couldn&apos;t get its old name back; it is at “%1”. Undo tries it again.</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>videos, film, movie, clip, footage, mp4, mov, mkv, avi, webm, recording</source>
        <translation>videos, film, movie, clip, footage, mp4, mov, mkv, avi, webm, recording</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sound</translation>
    </message>
    <message>
        <source>audio, music, song, recording, voice, track, mp3, m4a, wav, flac</source>
        <translation>audio, music, song, recording, voice, track, mp3, m4a, wav, flac</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>photo, image, picture, pic, jpg, jpeg, png, heic, webp, raw, tiff, screenshot, scan</source>
        <translation>photo, image, picture, pic, jpg, jpeg, png, heic, webp, raw, tiff, screenshot, scan</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>document, page, paper, file</source>
        <translation>document, page, paper, file</translation>
    </message>
    <message>
        <source>Smart</source>
        <translation>Smart</translation>
    </message>
    <message>
        <source>text, words, ai</source>
        <translation>text, words, ai</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>file, folder, any</source>
        <translation>file, folder, any</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Convert</translation>
    </message>
    <message>
        <source>WebP, JPEG, PNG, HEIC and more</source>
        <translation>WebP, JPEG, PNG, HEIC and more</translation>
    </message>
    <message>
        <source>change format, file type, export, save as, heic to jpg, heif to jpg, webp to png, png to jpg, jpg to png, jpg to webp, raw to jpg, tiff to jpg, avif, bmp, tif, jxl, jp2, ico, icns, iphone photos</source>
        <translation>change format, file type, export, save as, heic to jpg, heif to jpg, webp to png, png to jpg, jpg to png, jpg to webp, raw to jpg, tiff to jpg, avif, bmp, tif, jxl, jp2, ico, icns, iphone photos</translation>
    </message>
    <message>
        <source>New format</source>
        <translation>New format</translation>
    </message>
    <message>
        <source>WebP</source>
        <translation>WebP</translation>
    </message>
    <message>
        <source>Best for websites and blogs. Much smaller, same look.</source>
        <translation>Best for websites and blogs. Much smaller, same look.</translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>Opens on every phone, computer and website.</source>
        <translation>Opens on every phone, computer and website.</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>Keeps see-through backgrounds. Bigger files.</source>
        <translation>Keeps see-through backgrounds. Bigger files.</translation>
    </message>
    <message>
        <source>HEIC</source>
        <translation>HEIC</translation>
    </message>
    <message>
        <source>Apple&apos;s photo format. Small and sharp.</source>
        <translation>Apple&apos;s photo format. Small and sharp.</translation>
    </message>
    <message>
        <source>More formats (TIFF, GIF, AVIF)…</source>
        <translation>More formats (TIFF, GIF, AVIF)…</translation>
    </message>
    <message>
        <source>TIFF</source>
        <translation>TIFF</translation>
    </message>
    <message>
        <source>For printing and editing. Very large files.</source>
        <translation>For printing and editing. Very large files.</translation>
    </message>
    <message>
        <source>GIF</source>
        <translation>GIF</translation>
    </message>
    <message>
        <source>Simple pictures and logos. Limited colours.</source>
        <translation>Simple pictures and logos. Limited colours.</translation>
    </message>
    <message>
        <source>AVIF</source>
        <translation>AVIF</translation>
    </message>
    <message>
        <source>Newest web format. Very small files.</source>
        <translation>Newest web format. Very small files.</translation>
    </message>
    <message>
        <source>Not sure? JPEG if you&apos;re sending photos to people, WebP if they&apos;re going on a website.</source>
        <translation>Not sure? JPEG if you&apos;re sending photos to people, WebP if they&apos;re going on a website.</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Quality</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Smaller</translation>
    </message>
    <message>
        <source>Noticeably smaller. Fine for chat apps.</source>
        <translation>Noticeably smaller. Fine for chat apps.</translation>
    </message>
    <message>
        <source>Balanced</source>
        <translation>Balanced</translation>
    </message>
    <message>
        <source>You won&apos;t see a difference. Recommended.</source>
        <translation>You won&apos;t see a difference. Recommended.</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Best</translation>
    </message>
    <message>
        <source>Almost no change. Smaller savings.</source>
        <translation>Almost no change. Smaller savings.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open this file. It may be damaged, or not the kind of file this tool works with.</source>
        <translation>Couldn&apos;t open this file. It may be damaged, or not the kind of file this tool works with.</translation>
    </message>
    <message>
        <source>Make smaller</source>
        <translation>Make smaller</translation>
    </message>
    <message>
        <source>Smaller files that look the same</source>
        <translation>Smaller files that look the same</translation>
    </message>
    <message>
        <source>compress, shrink, reduce, reduce size, file size, optimise, optimize, lighter, too big, too large, email, attachment, save space, kb, mb, upload, web, website, quality, lower quality, squeeze, minify</source>
        <translation>compress, shrink, reduce, reduce size, file size, optimise, optimize, lighter, too big, too large, email, attachment, save space, kb, mb, upload, web, website, quality, lower quality, squeeze, minify</translation>
    </message>
    <message>
        <source>PNG files can&apos;t get much smaller without changing format. For big savings, convert them to WebP or JPEG instead.</source>
        <translation>PNG files can&apos;t get much smaller without changing format. For big savings, convert them to WebP or JPEG instead.</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Resize</translation>
    </message>
    <message>
        <source>Change the width and height</source>
        <translation>Change the width and height</translation>
    </message>
    <message>
        <source>scale, change size, dimensions, pixels, px, resolution, thumbnail, shrink, smaller, resize for email, email, instagram, website, wallpaper, avatar, profile, longest side, megapixels, small</source>
        <translation>scale, change size, dimensions, pixels, px, resolution, thumbnail, shrink, smaller, resize for email, email, instagram, website, wallpaper, avatar, profile, longest side, megapixels, small</translation>
    </message>
    <message>
        <source>How big should they be?</source>
        <translation>How big should they be?</translation>
    </message>
    <message>
        <source>3840 px · 4K screens</source>
        <translation>3840 px · 4K screens</translation>
    </message>
    <message>
        <source>2560 px · big screens</source>
        <translation>2560 px · big screens</translation>
    </message>
    <message>
        <source>1920 px · good for most uses</source>
        <translation>1920 px · good for most uses</translation>
    </message>
    <message>
        <source>1280 px · websites</source>
        <translation>1280 px · websites</translation>
    </message>
    <message>
        <source>800 px · email and chat</source>
        <translation>800 px · email and chat</translation>
    </message>
    <message>
        <source>Or longest side:</source>
        <translation>Or longest side:</translation>
    </message>
    <message>
        <source>Longest side in pixels</source>
        <translation>Longest side in pixels</translation>
    </message>
    <message>
        <source>Photos are never made bigger than they already are.</source>
        <translation>Photos are never made bigger than they already are.</translation>
    </message>
    <message>
        <source>Rotate or flip</source>
        <translation>Rotate or flip</translation>
    </message>
    <message>
        <source>Turn many photos at once</source>
        <translation>Turn many photos at once</translation>
    </message>
    <message>
        <source>turn, mirror, flip, sideways, upside down, orientation, straighten, portrait, landscape, 90 degrees, 180, spin, wrong way round</source>
        <translation>turn, mirror, flip, sideways, upside down, orientation, straighten, portrait, landscape, 90 degrees, 180, spin, wrong way round</translation>
    </message>
    <message>
        <source>Turn or mirror</source>
        <translation>Turn or mirror</translation>
    </message>
    <message>
        <source>As it is</source>
        <translation>As it is</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>Turn right</translation>
    </message>
    <message>
        <source>Turn left</source>
        <translation>Turn left</translation>
    </message>
    <message>
        <source>Turn upside down</source>
        <translation>Turn upside down</translation>
    </message>
    <message>
        <source>Mirror left to right</source>
        <translation>Mirror left to right</translation>
    </message>
    <message>
        <source>Mirror upside down</source>
        <translation>Mirror upside down</translation>
    </message>
    <message>
        <source>Remove location &amp; camera info</source>
        <translation>Remove location &amp; camera info</translation>
    </message>
    <message>
        <source>Share photos without hidden details</source>
        <translation>Share photos without hidden details</translation>
    </message>
    <message>
        <source>gps, exif, metadata, meta data, privacy, private, geotag, coordinates, place, where, strip, anonymous, anonymise, hidden data, xmp, iptc, clean, delete location, date taken, camera details, map</source>
        <translation>gps, exif, metadata, meta data, privacy, private, geotag, coordinates, place, where, strip, anonymous, anonymise, hidden data, xmp, iptc, clean, delete location, date taken, camera details, map</translation>
    </message>
    <message>
        <source>What should be removed?</source>
        <translation>What should be removed?</translation>
    </message>
    <message>
        <source>Location only</source>
        <translation>Location only</translation>
    </message>
    <message>
        <source>Where the photo was taken. Camera and date stay.</source>
        <translation>Where the photo was taken. Camera and date stay.</translation>
    </message>
    <message>
        <source>Everything hidden</source>
        <translation>Everything hidden</translation>
    </message>
    <message>
        <source>Location, camera, dates and other details. Photos stay upright.</source>
        <translation>Location, camera, dates and other details. Photos stay upright.</translation>
    </message>
    <message>
        <source>Keep the picture as it is</source>
        <translation>Keep the picture as it is</translation>
    </message>
    <message>
        <source>When possible the picture itself isn&apos;t re-saved, so quality stays exactly the same.</source>
        <translation>When possible the picture itself isn&apos;t re-saved, so quality stays exactly the same.</translation>
    </message>
    <message>
        <source>Remove background</source>
        <translation>Remove background</translation>
    </message>
    <message>
        <source>Cut out the subject, see-through background</source>
        <translation>Cut out the subject, see-through background</translation>
    </message>
    <message>
        <source>cut out, cutout, cut-out, transparent, transparency, erase background, delete background, isolate, subject, product, white background, sticker, clip art, logo, mask, passport, headshot, object, bg</source>
        <translation>cut out, cutout, cut-out, transparent, transparency, erase background, delete background, isolate, subject, product, white background, sticker, clip art, logo, mask, passport, headshot, object, bg</translation>
    </message>
    <message>
        <source>Cut out the subject</source>
        <translation>Cut out the subject</translation>
    </message>
    <message>
        <source>Tamble finds the main subject (a person, pet or object) and makes the background see-through. Everything happens on your Mac.
Works best when the subject stands out clearly from the background.</source>
        <translation>Tamble finds the main subject (a person, pet or object) and makes the background see-through. Everything happens on your computer.
Works best when the subject stands out clearly from the background.</translation>
    </message>
    <message>
        <source>For email, WhatsApp and Slack</source>
        <translation>For email, WhatsApp and Slack</translation>
    </message>
    <message>
        <source>compress, shrink, reduce, reduce size, file size, lighter, too big, too large, attachment, email, whatsapp, upload, bitrate, mb, optimise, optimize</source>
        <translation>compress, shrink, reduce, reduce size, file size, lighter, too big, too large, attachment, email, whatsapp, upload, bitrate, mb, optimise, optimize</translation>
    </message>
    <message>
        <source>This version of Tamble can&apos;t do this yet.</source>
        <translation>This version of Tamble can&apos;t do this yet.</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Trim</translation>
    </message>
    <message>
        <source>Cut the start or end</source>
        <translation>Cut the start or end</translation>
    </message>
    <message>
        <source>cut, shorten, cut out, clip, snip, split, beginning, length, edit, remove part</source>
        <translation>cut, shorten, cut out, clip, snip, split, beginning, length, edit, remove part</translation>
    </message>
    <message>
        <source>720p, 1080p or custom</source>
        <translation>720p, 1080p or custom</translation>
    </message>
    <message>
        <source>scale, dimensions, pixels, resolution, hd, full hd, 4k, 2k, 480p, downscale, smaller, size</source>
        <translation>scale, dimensions, pixels, resolution, hd, full hd, 4k, 2k, 480p, downscale, smaller, size</translation>
    </message>
    <message>
        <source>Crop &amp; rotate</source>
        <translation>Crop &amp; rotate</translation>
    </message>
    <message>
        <source>Fix sideways or badly framed video</source>
        <translation>Fix sideways or badly framed video</translation>
    </message>
    <message>
        <source>crop, turn, flip, mirror, sideways, upside down, orientation, portrait, landscape, vertical, square, black bars, reframe, aspect ratio, zoom</source>
        <translation>crop, turn, flip, mirror, sideways, upside down, orientation, portrait, landscape, vertical, square, black bars, reframe, aspect ratio, zoom</translation>
    </message>
    <message>
        <source>Change speed</source>
        <translation>Change speed</translation>
    </message>
    <message>
        <source>Faster or slower, voices sound normal</source>
        <translation>Faster or slower, voices sound normal</translation>
    </message>
    <message>
        <source>speed up, slow down, slow motion, slow-mo, slowmo, timelapse, time lapse, fast forward, faster, slower, tempo, quicker, pitch</source>
        <translation>speed up, slow down, slow motion, slow-mo, slowmo, timelapse, time lapse, fast forward, faster, slower, tempo, quicker, pitch</translation>
    </message>
    <message>
        <source>Join clips</source>
        <translation>Join clips</translation>
    </message>
    <message>
        <source>Put several videos together</source>
        <translation>Put several videos together</translation>
    </message>
    <message>
        <source>merge, combine, concatenate, append, stitch, glue, join videos, add together, one film, edit</source>
        <translation>merge, combine, concatenate, append, stitch, glue, join videos, add together, one film, edit</translation>
    </message>
    <message>
        <source>Remove sound</source>
        <translation>Remove sound</translation>
    </message>
    <message>
        <source>Silent video</source>
        <translation>Silent video</translation>
    </message>
    <message>
        <source>mute, silence, silent, delete audio, no audio, without sound, strip audio, quiet, volume off</source>
        <translation>mute, silence, silent, delete audio, no audio, without sound, strip audio, quiet, volume off</translation>
    </message>
    <message>
        <source>Replace sound</source>
        <translation>Replace sound</translation>
    </message>
    <message>
        <source>Use music or a voice-over instead</source>
        <translation>Use music or a voice-over instead</translation>
    </message>
    <message>
        <source>add music, background music, soundtrack, dub, dubbing, voiceover, narration, swap audio, new audio, song, change audio</source>
        <translation>add music, background music, soundtrack, dub, dubbing, voiceover, narration, swap audio, new audio, song, change audio</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation>Add subtitles</translation>
    </message>
    <message>
        <source>Burn captions into the video</source>
        <translation>Burn captions into the video</translation>
    </message>
    <message>
        <source>captions, caption, srt, vtt, closed captions, cc, hardcode, text on video, translate, foreign, lyrics</source>
        <translation>captions, caption, srt, vtt, closed captions, cc, hardcode, text on video, translate, foreign, lyrics</translation>
    </message>
    <message>
        <source>MP4, MOV or WebM</source>
        <translation>MP4, MOV or WebM</translation>
    </message>
    <message>
        <source>change format, file type, export, save as, mov to mp4, mkv to mp4, avi to mp4, webm to mp4, wmv, h264, h265, hevc, codec, encode, transcode, iphone video</source>
        <translation>change format, file type, export, save as, mov to mp4, mkv to mp4, avi to mp4, webm to mp4, wmv, h264, h265, hevc, codec, encode, transcode, iphone video</translation>
    </message>
    <message>
        <source>Make a GIF</source>
        <translation>Make a GIF</translation>
    </message>
    <message>
        <source>Short looping animation</source>
        <translation>Short looping animation</translation>
    </message>
    <message>
        <source>gif, animated gif, animation, loop, meme, sticker, video to gif, boomerang, reaction</source>
        <translation>gif, animated gif, animation, loop, meme, sticker, video to gif, boomerang, reaction</translation>
    </message>
    <message>
        <source>Get the audio</source>
        <translation>Get the audio</translation>
    </message>
    <message>
        <source>Save just the sound as MP3</source>
        <translation>Save just the sound as MP3</translation>
    </message>
    <message>
        <source>extract audio, video to mp3, mp4 to mp3, mp3, m4a, wav, rip, sound only, music from video, soundtrack, podcast</source>
        <translation>extract audio, video to mp3, mp4 to mp3, mp3, m4a, wav, rip, sound only, music from video, soundtrack, podcast</translation>
    </message>
    <message>
        <source>Record a voice note</source>
        <translation>Record a voice note</translation>
    </message>
    <message>
        <source>Saved straight to your Mac</source>
        <translation>Saved straight to your computer</translation>
    </message>
    <message>
        <source>recorder, microphone, dictate, dictation, memo, voice memo, speak, talk, mic, capture, note</source>
        <translation>recorder, microphone, dictate, dictation, memo, voice memo, speak, talk, mic, capture, note</translation>
    </message>
    <message>
        <source>cut, shorten, ringtone, snip, clip, split, beginning, length, remove part, edit, silence</source>
        <translation>cut, shorten, ringtone, snip, clip, split, beginning, length, remove part, edit, silence</translation>
    </message>
    <message>
        <source>Clean up</source>
        <translation>Clean up</translation>
    </message>
    <message>
        <source>Less background noise, even volume</source>
        <translation>Less background noise, even volume</translation>
    </message>
    <message>
        <source>noise, denoise, noise reduction, hiss, hum, normalise, normalize, loudness, louder, volume, enhance, improve, quiet, level, podcast, too quiet, echo</source>
        <translation>noise, denoise, noise reduction, hiss, hum, normalise, normalize, loudness, louder, volume, enhance, improve, quiet, level, podcast, too quiet, echo</translation>
    </message>
    <message>
        <source>Get audio from video</source>
        <translation>Get audio from video</translation>
    </message>
    <message>
        <source>Save the sound of any video</source>
        <translation>Save the sound of any video</translation>
    </message>
    <message>
        <source>extract audio, video to mp3, mp4 to mp3, mov to mp3, rip, music from video, sound only, mp4, mov</source>
        <translation>extract audio, video to mp3, mp4 to mp3, mov to mp3, rip, music from video, sound only, mp4, mov</translation>
    </message>
    <message>
        <source>MP3, M4A, WAV or FLAC</source>
        <translation>MP3, M4A, WAV or FLAC</translation>
    </message>
    <message>
        <source>change format, file type, wav to mp3, m4a to mp3, flac to mp3, mp3 to wav, ogg to mp3, aac, ogg, opus, aiff, wma, bitrate, encode, export, save as, ringtone</source>
        <translation>change format, file type, wav to mp3, m4a to mp3, flac to mp3, mp3 to wav, ogg to mp3, aac, ogg, opus, aiff, wma, bitrate, encode, export, save as, ringtone</translation>
    </message>
    <message>
        <source>Combine PDFs</source>
        <translation>Combine PDFs</translation>
    </message>
    <message>
        <source>Many PDFs (and photos) into one</source>
        <translation>Many PDFs (and photos) into one</translation>
    </message>
    <message>
        <source>merge, join, concatenate, append, put together, glue, bind, one file, single file, add pages, insert pages, stitch, collate, bundle, together, unite</source>
        <translation>merge, join, concatenate, append, put together, glue, bind, one file, single file, add pages, insert pages, stitch, collate, bundle, together, unite</translation>
    </message>
    <message>
        <source>Name of the new PDF</source>
        <translation>Name of the new PDF</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Password of locked PDFs</source>
        <translation>Password of locked PDFs</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Split</translation>
    </message>
    <message>
        <source>One PDF into several</source>
        <translation>One PDF into several</translation>
    </message>
    <message>
        <source>separate, divide, cut, break up, break apart, single pages, each page, burst, several files, chapters, part</source>
        <translation>separate, divide, cut, break up, break apart, single pages, each page, burst, several files, chapters, part</translation>
    </message>
    <message>
        <source>How should it be split?</source>
        <translation>How should it be split?</translation>
    </message>
    <message>
        <source>Every page on its own</source>
        <translation>Every page on its own</translation>
    </message>
    <message>
        <source>One PDF per page.</source>
        <translation>One PDF per page.</translation>
    </message>
    <message>
        <source>Every 10 pages</source>
        <translation>Every 10 pages</translation>
    </message>
    <message>
        <source>A new PDF after each group.</source>
        <translation>A new PDF after each group.</translation>
    </message>
    <message>
        <source>Page groups</source>
        <translation>Page groups</translation>
    </message>
    <message>
        <source>Each group you type becomes a PDF. For example 1-3, 5, 8-10</source>
        <translation>Each group you type becomes a PDF. For example 1-3, 5, 8-10</translation>
    </message>
    <message>
        <source>Type the pages to split, like 1-3, 5</source>
        <translation>Type the pages to split, like 1-3, 5</translation>
    </message>
    <message>
        <source>The pieces go into a new folder named after the PDF. The original isn&apos;t changed.</source>
        <translation>The pieces go into a new folder named after the PDF. The original isn&apos;t changed.</translation>
    </message>
    <message>
        <source>Reorder &amp; rotate pages</source>
        <translation>Reorder &amp; rotate pages</translation>
    </message>
    <message>
        <source>Drag pages into place</source>
        <translation>Drag pages into place</translation>
    </message>
    <message>
        <source>edit pages, order, sort, arrange, rearrange, move pages, swap pages, organise, organize, turn, sideways, upside down, orientation, landscape, portrait, flip, sequence</source>
        <translation>edit pages, order, sort, arrange, rearrange, move pages, swap pages, organise, organize, turn, sideways, upside down, orientation, landscape, portrait, flip, sequence</translation>
    </message>
    <message>
        <source>The new order</source>
        <translation>The new order</translation>
    </message>
    <message>
        <source>Pages in their new order</source>
        <translation>Pages in their new order</translation>
    </message>
    <message>
        <source>For example 3, 1, 5-8</source>
        <translation>For example 3, 1, 5-8</translation>
    </message>
    <message>
        <source>At least one page has to stay.</source>
        <translation>At least one page has to stay.</translation>
    </message>
    <message>
        <source>Delete pages</source>
        <translation>Delete pages</translation>
    </message>
    <message>
        <source>Remove pages you don&apos;t need</source>
        <translation>Remove pages you don&apos;t need</translation>
    </message>
    <message>
        <source>remove pages, erase, drop, discard, blank pages, empty pages, get rid, cut</source>
        <translation>remove pages, erase, drop, discard, blank pages, empty pages, get rid, cut</translation>
    </message>
    <message>
        <source>Which pages should go?</source>
        <translation>Which pages should go?</translation>
    </message>
    <message>
        <source>Pages to delete</source>
        <translation>Pages to delete</translation>
    </message>
    <message>
        <source>For example 2, 4-6</source>
        <translation>For example 2, 4-6</translation>
    </message>
    <message>
        <source>Take out pages</source>
        <translation>Take out pages</translation>
    </message>
    <message>
        <source>Save some pages as a new PDF</source>
        <translation>Save some pages as a new PDF</translation>
    </message>
    <message>
        <source>extract, extract pages, select, pick, keep pages, copy pages, save pages, pull out, single page, some pages, export</source>
        <translation>extract, extract pages, select, pick, keep pages, copy pages, save pages, pull out, single page, some pages, export</translation>
    </message>
    <message>
        <source>Which pages do you want?</source>
        <translation>Which pages do you want?</translation>
    </message>
    <message>
        <source>Pages to take out</source>
        <translation>Pages to take out</translation>
    </message>
    <message>
        <source>For example 1-3, 5</source>
        <translation>For example 1-3, 5</translation>
    </message>
    <message>
        <source>So it fits in an email</source>
        <translation>So it fits in an email</translation>
    </message>
    <message>
        <source>compress, shrink, reduce, reduce size, file size, lighter, too big, too large, attachment, optimise, optimize, upload, save space, kb, mb, squeeze</source>
        <translation>compress, shrink, reduce, reduce size, file size, lighter, too big, too large, attachment, optimise, optimize, upload, save space, kb, mb, squeeze</translation>
    </message>
    <message>
        <source>How much smaller?</source>
        <translation>How much smaller?</translation>
    </message>
    <message>
        <source>Smaller, text stays sharp</source>
        <translation>Smaller, text stays sharp</translation>
    </message>
    <message>
        <source>Pictures are re-saved for screens. Text can still be selected and searched. Recommended.</source>
        <translation>Pictures are re-saved for screens. Text can still be selected and searched. Recommended.</translation>
    </message>
    <message>
        <source>Smallest</source>
        <translation>Smallest</translation>
    </message>
    <message>
        <source>Every page becomes a picture. Much smaller, but text can&apos;t be selected or searched.</source>
        <translation>Every page becomes a picture. Much smaller, but text can&apos;t be selected or searched.</translation>
    </message>
    <message>
        <source>PDFs that are already small are left as they are.</source>
        <translation>PDFs that are already small are left as they are.</translation>
    </message>
    <message>
        <source>Sign</source>
        <translation>Sign</translation>
    </message>
    <message>
        <source>Draw your signature</source>
        <translation>Draw your signature</translation>
    </message>
    <message>
        <source>signature, sign pdf, autograph, contract, agreement, initials, e-sign, esign, stamp, signing, paperwork</source>
        <translation>signature, sign pdf, autograph, contract, agreement, initials, e-sign, esign, stamp, signing, paperwork</translation>
    </message>
    <message>
        <source>Place it on any page. The PDF gets a picture of your signature, not a digital seal.</source>
        <translation>Place it on any page. The PDF gets a picture of your signature, not a digital seal.</translation>
    </message>
    <message>
        <source>Add a password</source>
        <translation>Add a password</translation>
    </message>
    <message>
        <source>Only people with the password can open it</source>
        <translation>Only people with the password can open it</translation>
    </message>
    <message>
        <source>lock, protect, encrypt, encryption, secure, security, secret, confidential, private, privacy, safe, restrict</source>
        <translation>lock, protect, encrypt, encryption, secure, security, secret, confidential, private, privacy, safe, restrict</translation>
    </message>
    <message>
        <source>Type a password (at least 4 characters)</source>
        <translation>Type a password (at least 4 characters)</translation>
    </message>
    <message>
        <source>Remove a password</source>
        <translation>Remove a password</translation>
    </message>
    <message>
        <source>When you know the password</source>
        <translation>When you know the password</translation>
    </message>
    <message>
        <source>unlock, decrypt, unprotect, open, forgot, without password, unsecure, locked, protected, encrypted, restrictions, no password</source>
        <translation>unlock, decrypt, unprotect, open, forgot, without password, unsecure, locked, protected, encrypted, restrictions, no password</translation>
    </message>
    <message>
        <source>The password that opens the PDF</source>
        <translation>The password that opens the PDF</translation>
    </message>
    <message>
        <source>Photos to PDF</source>
        <translation>Photos to PDF</translation>
    </message>
    <message>
        <source>One photo per page</source>
        <translation>One photo per page</translation>
    </message>
    <message>
        <source>photo to pdf, jpg to pdf, jpeg to pdf, png to pdf, heic to pdf, image to pdf, picture to pdf, scan, scans, scanned, receipts, album, make pdf, create pdf, convert, save as pdf, homework, documents, screenshots</source>
        <translation>photo to pdf, jpg to pdf, jpeg to pdf, png to pdf, heic to pdf, image to pdf, picture to pdf, scan, scans, scanned, receipts, album, make pdf, create pdf, convert, save as pdf, homework, documents, screenshots</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Page size</translation>
    </message>
    <message>
        <source>Same shape as each photo</source>
        <translation>Same shape as each photo</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>Turned to each photo&apos;s own orientation.</source>
        <translation>Turned to each photo&apos;s own orientation.</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>Letter</translation>
    </message>
    <message>
        <source>White border</source>
        <translation>White border</translation>
    </message>
    <message>
        <source>A margin around each photo.</source>
        <translation>A margin around each photo.</translation>
    </message>
    <message>
        <source>PDF to photos</source>
        <translation>PDF to photos</translation>
    </message>
    <message>
        <source>Every page as an image</source>
        <translation>Every page as an image</translation>
    </message>
    <message>
        <source>pdf to jpg, pdf to jpeg, pdf to png, pdf to image, pdf to picture, convert, export, screenshot, thumbnail, render, preview, rasterise, rasterize, slides</source>
        <translation>pdf to jpg, pdf to jpeg, pdf to png, pdf to image, pdf to picture, convert, export, screenshot, thumbnail, render, preview, rasterise, rasterize, slides</translation>
    </message>
    <message>
        <source>Format of the pictures</source>
        <translation>Format of the pictures</translation>
    </message>
    <message>
        <source>Text stays perfectly sharp. Bigger files.</source>
        <translation>Text stays perfectly sharp. Bigger files.</translation>
    </message>
    <message>
        <source>Best for websites and blogs.</source>
        <translation>Best for websites and blogs.</translation>
    </message>
    <message>
        <source>More formats (HEIC, TIFF, GIF, AVIF)…</source>
        <translation>More formats (HEIC, TIFF, GIF, AVIF)…</translation>
    </message>
    <message>
        <source>Small and sharp.</source>
        <translation>Small and sharp.</translation>
    </message>
    <message>
        <source>Limited colours.</source>
        <translation>Limited colours.</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Sharpness</translation>
    </message>
    <message>
        <source>Dots per inch</source>
        <translation>Dots per inch</translation>
    </message>
    <message>
        <source>150 suits screens, 300 suits printing.</source>
        <translation>150 suits screens, 300 suits printing.</translation>
    </message>
    <message>
        <source>Speech to text</source>
        <translation>Speech to text</translation>
    </message>
    <message>
        <source>Subtitles or a text file, privately</source>
        <translation>Subtitles or a text file, privately</translation>
    </message>
    <message>
        <source>transcribe, transcript, transcription, dictation, captions, subtitles, srt, interview, meeting, lecture, voice to text, audio to text, video to text, mp3 to text, minutes, notes, write down, podcast</source>
        <translation>transcribe, transcript, transcription, dictation, captions, subtitles, srt, interview, meeting, lecture, voice to text, audio to text, video to text, mp3 to text, minutes, notes, write down, podcast</translation>
    </message>
    <message>
        <source>Copy text from images</source>
        <translation>Copy text from images</translation>
    </message>
    <message>
        <source>From photos, scans and PDFs</source>
        <translation>From photos, scans and PDFs</translation>
    </message>
    <message>
        <source>ocr, read text, recognise, recognize, extract text, scan, scanned, searchable, screenshot, image to text, photo to text, picture to text, pdf to text, handwriting, receipt, digitise, digitize, jpg, png</source>
        <translation>ocr, read text, recognise, recognize, extract text, scan, scanned, searchable, screenshot, image to text, photo to text, picture to text, pdf to text, handwriting, receipt, digitise, digitize, jpg, png</translation>
    </message>
    <message>
        <source>Summarise</source>
        <translation>Summarise</translation>
    </message>
    <message>
        <source>Short version of long text</source>
        <translation>Short version of long text</translation>
    </message>
    <message>
        <source>summary, summarize, shorten, shorter, tldr, key points, abstract, brief, digest, overview, article, docx, doc, odt, rtf, txt, word, document, essay, report, pdf, minutes</source>
        <translation>summary, summarize, shorten, shorter, tldr, key points, abstract, brief, digest, overview, article, docx, doc, odt, rtf, txt, word, document, essay, report, pdf, minutes</translation>
    </message>
    <message>
        <source>Translate</source>
        <translation>Translate</translation>
    </message>
    <message>
        <source>Text, documents and subtitles, offline</source>
        <translation>Text, documents and subtitles, offline</translation>
    </message>
    <message>
        <source>translation, translator, language, english, german, french, spanish, italian, portuguese, foreign, docx, doc, odt, rtf, txt, srt, vtt, word, pdf, letter</source>
        <translation>translation, translator, language, english, german, french, spanish, italian, portuguese, foreign, docx, doc, odt, rtf, txt, srt, vtt, word, pdf, letter</translation>
    </message>
    <message>
        <source>Rename many files</source>
        <translation>Rename many files</translation>
    </message>
    <message>
        <source>Numbered names with a live preview</source>
        <translation>Numbered names with a live preview</translation>
    </message>
    <message>
        <source>batch rename, bulk rename, file names, filenames, number, numbering, sequence, prefix, suffix, replace text, find and replace, find, date in name, counter, upper case, lower case, extension, photos, pictures, label, title, sort</source>
        <translation>batch rename, bulk rename, file names, filenames, number, numbering, sequence, prefix, suffix, replace text, find and replace, find, date in name, counter, upper case, lower case, extension, photos, pictures, label, title, sort</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>New name</translation>
    </message>
    <message>
        <source>New name, e.g. Goa trip</source>
        <translation>New name, e.g. Goa trip</translation>
    </message>
    <message>
        <source>Keep the current names</source>
        <translation>Keep the current names</translation>
    </message>
    <message>
        <source>Find and replace</source>
        <translation>Find and replace</translation>
    </message>
    <message>
        <source>Text to look for</source>
        <translation>Text to look for</translation>
    </message>
    <message>
        <source>What replaces it</source>
        <translation>What replaces it</translation>
    </message>
    <message>
        <source>Only with the same upper and lower case letters</source>
        <translation>Only with the same upper and lower case letters</translation>
    </message>
    <message>
        <source>More text</source>
        <translation>More text</translation>
    </message>
    <message>
        <source>Before the name</source>
        <translation>Before the name</translation>
    </message>
    <message>
        <source>After the name</source>
        <translation>After the name</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Numbers</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>First number</source>
        <translation>First number</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>Digits</translation>
    </message>
    <message>
        <source>Between the number and the name</source>
        <translation>Between the number and the name</translation>
    </message>
    <message>
        <source>Upper and lower case</source>
        <translation>Upper and lower case</translation>
    </message>
    <message>
        <source>lower case</source>
        <translation>lower case</translation>
    </message>
    <message>
        <source>UPPER CASE</source>
        <translation>UPPER CASE</translation>
    </message>
    <message>
        <source>Title Case</source>
        <translation>Title Case</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Extension</translation>
    </message>
    <message>
        <source>Change the extension</source>
        <translation>Change the extension</translation>
    </message>
    <message>
        <source>New extension</source>
        <translation>New extension</translation>
    </message>
    <message>
        <source>Couldn&apos;t open this file. It may be damaged.</source>
        <translation>Couldn&apos;t open this file. It may be damaged.</translation>
    </message>
    <message>
        <source>Rename the files</source>
        <translation>Rename the files</translation>
    </message>
    <message>
        <source>The files themselves get their new names. Undo puts the old names back.</source>
        <translation>The files themselves get their new names. Undo puts the old names back.</translation>
    </message>
    <message>
        <source>Make renamed copies</source>
        <translation>Make renamed copies</translation>
    </message>
    <message>
        <source>Your files keep their names; copies with the new names are saved.</source>
        <translation>Your files keep their names; copies with the new names are saved.</translation>
    </message>
    <message>
        <source>This Mac can&apos;t save that format.</source>
        <translation>This computer can&apos;t save that format.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read the picture inside this file.</source>
        <translation>Couldn&apos;t read the picture inside this file.</translation>
    </message>
    <message>
        <source>Saving the new file failed.</source>
        <translation>Saving the new file failed.</translation>
    </message>
    <message>
        <source>Too big for WebP (16,383 pixels per side at most). Make it smaller first.</source>
        <translation>Too big for WebP (16,383 pixels per side at most). Make it smaller first.</translation>
    </message>
    <message>
        <source>Animated images aren&apos;t supported yet, so this one was left alone.</source>
        <translation>Animated images aren&apos;t supported yet, so this one was left alone.</translation>
    </message>
    <message>
        <source>This file has several pages. Only single-page images are supported, so it was left alone.</source>
        <translation>This file has several pages. Only single-page images are supported, so it was left alone.</translation>
    </message>
    <message>
        <source>Couldn&apos;t find a clear subject to cut out.</source>
        <translation>Couldn&apos;t find a clear subject to cut out.</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove the background from this photo.</source>
        <translation>Couldn&apos;t remove the background from this photo.</translation>
    </message>
    <message>
        <source>This PDF has a password. Type it in and try again.</source>
        <translation>This PDF has a password. Type it in and try again.</translation>
    </message>
    <message>
        <source>That password didn&apos;t open this PDF.</source>
        <translation>That password didn&apos;t open this PDF.</translation>
    </message>
    <message>
        <source>Those page numbers don&apos;t fit this PDF.</source>
        <translation>Those page numbers don&apos;t fit this PDF.</translation>
    </message>
    <message>
        <source>No pages would be left.</source>
        <translation>No pages would be left.</translation>
    </message>
    <message>
        <source>Saving the new PDF failed.</source>
        <translation>Saving the new PDF failed.</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove the password from this PDF.</source>
        <translation>Couldn&apos;t remove the password from this PDF.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read one of the photos.</source>
        <translation>Couldn&apos;t read one of the photos.</translation>
    </message>
    <message>
        <source>Couldn&apos;t draw one of the pages.</source>
        <translation>Couldn&apos;t draw one of the pages.</translation>
    </message>
    <message>
        <source>A page would be too large for this format. Choose a smaller resolution.</source>
        <translation>A page would be too large for this format. Choose a smaller resolution.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read the signature picture.</source>
        <translation>Couldn&apos;t read the signature picture.</translation>
    </message>
    <message>
        <source>Draw or choose a signature first.</source>
        <translation>Draw or choose a signature first.</translation>
    </message>
    <message>
        <source>The signature doesn&apos;t fit on its page.</source>
        <translation>The signature doesn&apos;t fit on its page.</translation>
    </message>
    <message>
        <source>Say which pages first, like 1-3, 5.</source>
        <translation>Say which pages first, like 1-3, 5.</translation>
    </message>
    <message>
        <source>Two files would get this name</source>
        <translation>Two files would get this name</translation>
    </message>
    <message>
        <source>Another file already has this name</source>
        <translation>Another file already has this name</translation>
    </message>
    <message>
        <source>The name would be empty</source>
        <translation>The name would be empty</translation>
    </message>
    <message>
        <source>The name would be too long</source>
        <translation>The name would be too long</translation>
    </message>
    <message>
        <source>A part of Tamble couldn&apos;t be started. Install Tamble again.</source>
        <translation>A part of Tamble couldn&apos;t be started. Install Tamble again.</translation>
    </message>
    <message>
        <source>This file is no longer there.</source>
        <translation>This file is no longer there.</translation>
    </message>
    <message>
        <source>This file changed while it was being worked on.</source>
        <translation>This file changed while it was being worked on.</translation>
    </message>
    <message>
        <source>Processor finished without writing a file</source>
        <translation>Processor finished without writing a file</translation>
    </message>
    <message>
        <source>Combiner finished without writing a file</source>
        <translation>Combiner finished without writing a file</translation>
    </message>
    <message>
        <source>No staging folder</source>
        <translation>No staging folder</translation>
    </message>
    <message>
        <source>it was cancelled by itself.</source>
        <translation>it was cancelled by itself.</translation>
    </message>
    <message>
        <source>no cause was given.</source>
        <translation>no cause was given.</translation>
    </message>
    <message>
        <source>Nothing was renamed: a file couldn&apos;t be renamed (it may be open or locked), so all the old names were kept.</source>
        <translation>Nothing was renamed: a file couldn&apos;t be renamed (it may be open or locked), so all the old names were kept.</translation>
    </message>
    <message>
        <source>There is no room for previews on this computer.</source>
        <translation>There is no room for previews on this computer.</translation>
    </message>
    <message>
        <source>The tool made no file.</source>
        <translation>The tool made no file.</translation>
    </message>
    <message>
        <source>There is already a file with this name</source>
        <translation>There is already a file with this name</translation>
    </message>
    <message>
        <source>The new file wouldn&apos;t be smaller</source>
        <translation>The new file wouldn&apos;t be smaller</translation>
    </message>
    <message>
        <source>This PDF doesn&apos;t have a password</source>
        <translation>This PDF doesn&apos;t have a password</translation>
    </message>
    <message>
        <source>This file already has its new name</source>
        <translation>This file already has its new name</translation>
    </message>
    <message>
        <source>Shortcuts to other folders aren&apos;t followed.</source>
        <translation>Shortcuts to other folders aren&apos;t followed.</translation>
    </message>
    <message>
        <source>App packages and photo libraries aren&apos;t opened.</source>
        <translation>App packages and photo libraries aren&apos;t opened.</translation>
    </message>
    <message>
        <source>The folder you chose is empty or couldn&apos;t be read.</source>
        <translation>The folder you chose is empty or couldn&apos;t be read.</translation>
    </message>
    <message numerus="yes">
        <source>Convert %n photo(s)</source>
        <translation>
            <numerusform>Convert %Ln photo</numerusform>
            <numerusform>Convert %Ln photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Converting %n photo(s)</source>
        <translation>
            <numerusform>Converting %Ln photo</numerusform>
            <numerusform>Converting %Ln photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) converted</source>
        <translation>
            <numerusform>%Ln photo converted</numerusform>
            <numerusform>%Ln photos converted</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Make %n photo(s) smaller</source>
        <translation>
            <numerusform>Make %Ln photo smaller</numerusform>
            <numerusform>Make %Ln photos smaller</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Making %n photo(s) smaller</source>
        <translation>
            <numerusform>Making %Ln photo smaller</numerusform>
            <numerusform>Making %Ln photos smaller</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) made smaller</source>
        <translation>
            <numerusform>%Ln photo made smaller</numerusform>
            <numerusform>%Ln photos made smaller</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Resize %n photo(s)</source>
        <translation>
            <numerusform>Resize %Ln photo</numerusform>
            <numerusform>Resize %Ln photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Resizing %n photo(s)</source>
        <translation>
            <numerusform>Resizing %Ln photo</numerusform>
            <numerusform>Resizing %Ln photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) resized</source>
        <translation>
            <numerusform>%Ln photo resized</numerusform>
            <numerusform>%Ln photos resized</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Turn %n photo(s)</source>
        <translation>
            <numerusform>Turn %Ln photo</numerusform>
            <numerusform>Turn %Ln photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Turning %n photo(s)</source>
        <translation>
            <numerusform>Turning %Ln photo</numerusform>
            <numerusform>Turning %Ln photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) turned</source>
        <translation>
            <numerusform>%Ln photo turned</numerusform>
            <numerusform>%Ln photos turned</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Clean %n photo(s)</source>
        <translation>
            <numerusform>Clean %Ln photo</numerusform>
            <numerusform>Clean %Ln photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Cleaning %n photo(s)</source>
        <translation>
            <numerusform>Cleaning %Ln photo</numerusform>
            <numerusform>Cleaning %Ln photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) cleaned</source>
        <translation>
            <numerusform>%Ln photo cleaned</numerusform>
            <numerusform>%Ln photos cleaned</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove %n background(s)</source>
        <translation>
            <numerusform>Remove %Ln background</numerusform>
            <numerusform>Remove %Ln backgrounds</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Removing %n background(s)</source>
        <translation>
            <numerusform>Removing %Ln background</numerusform>
            <numerusform>Removing %Ln backgrounds</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n background(s) removed</source>
        <translation>
            <numerusform>%Ln background removed</numerusform>
            <numerusform>%Ln backgrounds removed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Combine %n file(s)</source>
        <translation>
            <numerusform>Combine %Ln file</numerusform>
            <numerusform>Combine %Ln files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Combining %n file(s)</source>
        <translation>
            <numerusform>Combining %Ln file</numerusform>
            <numerusform>Combining %Ln files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) combined</source>
        <translation>
            <numerusform>%Ln file combined</numerusform>
            <numerusform>%Ln files combined</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Split %n PDF(s)</source>
        <translation>
            <numerusform>Split %Ln PDF</numerusform>
            <numerusform>Split %Ln PDFs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Splitting %n PDF(s)</source>
        <translation>
            <numerusform>Splitting %Ln PDF</numerusform>
            <numerusform>Splitting %Ln PDFs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n PDF(s) split</source>
        <translation>
            <numerusform>%Ln PDF split</numerusform>
            <numerusform>%Ln PDFs split</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reorder %n PDF(s)</source>
        <translation>
            <numerusform>Reorder %Ln PDF</numerusform>
            <numerusform>Reorder %Ln PDFs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reordering %n PDF(s)</source>
        <translation>
            <numerusform>Reordering %Ln PDF</numerusform>
            <numerusform>Reordering %Ln PDFs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n PDF(s) reordered</source>
        <translation>
            <numerusform>%Ln PDF reordered</numerusform>
            <numerusform>%Ln PDFs reordered</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete pages from %n PDF(s)</source>
        <translation>
            <numerusform>Delete pages from %Ln PDF</numerusform>
            <numerusform>Delete pages from %Ln PDFs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deleting pages from %n PDF(s)</source>
        <translation>
            <numerusform>Deleting pages from %Ln PDF</numerusform>
            <numerusform>Deleting pages from %Ln PDFs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Pages deleted from %n PDF(s)</source>
        <translation>
            <numerusform>Pages deleted from %Ln PDF</numerusform>
            <numerusform>Pages deleted from %Ln PDFs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Take pages out of %n PDF(s)</source>
        <translation>
            <numerusform>Take pages out of %Ln PDF</numerusform>
            <numerusform>Take pages out of %Ln PDFs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Taking pages out of %n PDF(s)</source>
        <translation>
            <numerusform>Taking pages out of %Ln PDF</numerusform>
            <numerusform>Taking pages out of %Ln PDFs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Pages taken out of %n PDF(s)</source>
        <translation>
            <numerusform>Pages taken out of %Ln PDF</numerusform>
            <numerusform>Pages taken out of %Ln PDFs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Make %n PDF(s) smaller</source>
        <translation>
            <numerusform>Make %Ln PDF smaller</numerusform>
            <numerusform>Make %Ln PDFs smaller</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Making %n PDF(s) smaller</source>
        <translation>
            <numerusform>Making %Ln PDF smaller</numerusform>
            <numerusform>Making %Ln PDFs smaller</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n PDF(s) made smaller</source>
        <translation>
            <numerusform>%Ln PDF made smaller</numerusform>
            <numerusform>%Ln PDFs made smaller</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Sign %n PDF(s)</source>
        <translation>
            <numerusform>Sign %Ln PDF</numerusform>
            <numerusform>Sign %Ln PDFs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Signing %n PDF(s)</source>
        <translation>
            <numerusform>Signing %Ln PDF</numerusform>
            <numerusform>Signing %Ln PDFs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n PDF(s) signed</source>
        <translation>
            <numerusform>%Ln PDF signed</numerusform>
            <numerusform>%Ln PDFs signed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Lock %n PDF(s)</source>
        <translation>
            <numerusform>Lock %Ln PDF</numerusform>
            <numerusform>Lock %Ln PDFs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Locking %n PDF(s)</source>
        <translation>
            <numerusform>Locking %Ln PDF</numerusform>
            <numerusform>Locking %Ln PDFs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n PDF(s) locked</source>
        <translation>
            <numerusform>%Ln PDF locked</numerusform>
            <numerusform>%Ln PDFs locked</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlock %n PDF(s)</source>
        <translation>
            <numerusform>Unlock %Ln PDF</numerusform>
            <numerusform>Unlock %Ln PDFs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlocking %n PDF(s)</source>
        <translation>
            <numerusform>Unlocking %Ln PDF</numerusform>
            <numerusform>Unlocking %Ln PDFs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n PDF(s) unlocked</source>
        <translation>
            <numerusform>%Ln PDF unlocked</numerusform>
            <numerusform>%Ln PDFs unlocked</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Make a PDF of %n photo(s)</source>
        <translation>
            <numerusform>Make a PDF of %Ln photo</numerusform>
            <numerusform>Make a PDF of %Ln photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Making a PDF of %n photo(s)</source>
        <translation>
            <numerusform>Making a PDF of %Ln photo</numerusform>
            <numerusform>Making a PDF of %Ln photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A PDF made of %n photo(s)</source>
        <translation>
            <numerusform>A PDF made of %Ln photo</numerusform>
            <numerusform>A PDF made of %Ln photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Turn %n PDF(s) into photos</source>
        <translation>
            <numerusform>Turn %Ln PDF into photos</numerusform>
            <numerusform>Turn %Ln PDFs into photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Turning %n PDF(s) into photos</source>
        <translation>
            <numerusform>Turning %Ln PDF into photos</numerusform>
            <numerusform>Turning %Ln PDFs into photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n PDF(s) turned into photos</source>
        <translation>
            <numerusform>%Ln PDF turned into photos</numerusform>
            <numerusform>%Ln PDFs turned into photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Rename %n file(s)</source>
        <translation>
            <numerusform>Rename %Ln file</numerusform>
            <numerusform>Rename %Ln files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Renaming %n file(s)</source>
        <translation>
            <numerusform>Renaming %Ln file</numerusform>
            <numerusform>Renaming %Ln files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) renamed</source>
        <translation>
            <numerusform>%Ln file renamed</numerusform>
            <numerusform>%Ln files renamed</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>Add files</source>
        <translation>Add files</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Choose a file</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choose a folder</translation>
    </message>
</context>
<context>
    <name>FileStrip</name>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
</context>
<context>
    <name>FileTable</name>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>%Ln selected</numerusform>
            <numerusform>%Ln selected</numerusform>
        </translation>
    </message>
    <message>
        <source>Drag into the order you want</source>
        <translation>Drag into the order you want</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%Ln file</numerusform>
            <numerusform>%Ln files</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Order</translation>
    </message>
    <message>
        <source>As dropped</source>
        <translation>As dropped</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>By name</translation>
    </message>
    <message>
        <source>By size</source>
        <translation>By size</translation>
    </message>
    <message>
        <source>By kind</source>
        <translation>By kind</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Remove from the list</translation>
    </message>
    <message>
        <source>Remove the folder from the list</source>
        <translation>Remove the folder from the list</translation>
    </message>
</context>
<context>
    <name>FilesInvitation</name>
    <message>
        <source>Drop files here</source>
        <translation>Drop files here</translation>
    </message>
    <message>
        <source>Add files…</source>
        <translation>Add files…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Add folder…</translation>
    </message>
</context>
<context>
    <name>Header</name>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
</context>
<context>
    <name>HomeScreen</name>
    <message>
        <source>Popular</source>
        <translation>Popular</translation>
    </message>
    <message numerus="yes">
        <source>All %n tool(s)</source>
        <translation>
            <numerusform>All %Ln tool</numerusform>
            <numerusform>All %Ln tools</numerusform>
        </translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recent</translation>
    </message>
    <message>
        <source>All activity</source>
        <translation>All activity</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>A job is still running</source>
        <translation>A job is still running</translation>
    </message>
    <message>
        <source>If you quit now, it stops and nothing is saved. If it has already started saving, Tamble finishes that first, then quits.</source>
        <translation>If you quit now, it stops and nothing is saved. If it has already started saving, Tamble finishes that first, then quits.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>Keep working</source>
        <translation>Keep working</translation>
    </message>
    <message>
        <source>A job was interrupted</source>
        <translation>A job was interrupted</translation>
    </message>
    <message>
        <source>Put everything back</source>
        <translation>Put everything back</translation>
    </message>
    <message>
        <source>All right</source>
        <translation>All right</translation>
    </message>
    <message>
        <source>Leave it as it is</source>
        <translation>Leave it as it is</translation>
    </message>
    <message>
        <source>Show activity</source>
        <translation>Show activity</translation>
    </message>
</context>
<context>
    <name>NamesEditor</name>
    <message>
        <source>Order</source>
        <translation>Order</translation>
    </message>
    <message>
        <source>As dropped</source>
        <translation>As dropped</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>By name</translation>
    </message>
    <message>
        <source>By size</source>
        <translation>By size</translation>
    </message>
    <message>
        <source>By kind</source>
        <translation>By kind</translation>
    </message>
    <message>
        <source>Old and new names</source>
        <translation>Old and new names</translation>
    </message>
    <message>
        <source>%1 becomes %2</source>
        <translation>%1 becomes %2</translation>
    </message>
</context>
<context>
    <name>OneDocument</name>
    <message>
        <source>Which PDF would you like to sign?</source>
        <translation>Which PDF would you like to sign?</translation>
    </message>
    <message>
        <source>One is signed at a time. The others stay as they are.</source>
        <translation>One is signed at a time. The others stay as they are.</translation>
    </message>
    <message>
        <source>Sign %1</source>
        <translation>Sign %1</translation>
    </message>
</context>
<context>
    <name>PageCell</name>
    <message>
        <source>Page %1</source>
        <translation>Page %1</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>left out</translation>
    </message>
    <message>
        <source>%1 · left out</source>
        <translation>%1 · left out</translation>
    </message>
</context>
<context>
    <name>PageEditor</name>
    <message>
        <source>Smaller pages</source>
        <translation>Smaller pages</translation>
    </message>
    <message>
        <source>Larger pages</source>
        <translation>Larger pages</translation>
    </message>
</context>
<context>
    <name>PageGrid</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%Ln page</numerusform>
            <numerusform>%Ln pages</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PageTools</name>
    <message>
        <source>Turn left</source>
        <translation>Turn left</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>Turn right</translation>
    </message>
    <message>
        <source>Bring back</source>
        <translation>Bring back</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Leave out</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Select none</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Start over</source>
        <translation>Start over</translation>
    </message>
    <message>
        <source>With the keyboard: Alt and the arrows move pages, R turns them, Delete leaves them out.</source>
        <translation>With the keyboard: Alt and the arrows move pages, R turns them, Delete leaves them out.</translation>
    </message>
    <message>
        <source>At least one page has to stay.</source>
        <translation>At least one page has to stay.</translation>
    </message>
</context>
<context>
    <name>PathSetting</name>
    <message>
        <source>Use the usual one</source>
        <translation>Use the usual one</translation>
    </message>
</context>
<context>
    <name>QuickSearchPopup</name>
    <message>
        <source>What would you like to do?</source>
        <translation>What would you like to do?</translation>
    </message>
    <message>
        <source>Enter ↵</source>
        <translation>Enter ↵</translation>
    </message>
    <message>
        <source>Not yet</source>
        <translation>Not yet</translation>
    </message>
    <message>
        <source>No tool does that. Try another word, like “shrink” or “rotate”.</source>
        <translation>No tool does that. Try another word, like “shrink” or “rotate”.</translation>
    </message>
</context>
<context>
    <name>RemoveMark</name>
    <message>
        <source>Remove from the list</source>
        <translation>Remove from the list</translation>
    </message>
</context>
<context>
    <name>SaveChoices</name>
    <message>
        <source>Rename the files</source>
        <translation>Rename the files</translation>
    </message>
    <message>
        <source>Make renamed copies</source>
        <translation>Make renamed copies</translation>
    </message>
    <message>
        <source>Next to each original</source>
        <translation>Next to each original</translation>
    </message>
    <message>
        <source>In one folder</source>
        <translation>In one folder</translation>
    </message>
    <message>
        <source>In place of originals</source>
        <translation>In place of originals</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choose a folder</translation>
    </message>
    <message>
        <source>If the name is taken</source>
        <translation>If the name is taken</translation>
    </message>
    <message>
        <source>Add a number</source>
        <translation>Add a number</translation>
    </message>
    <message>
        <source>Skip the file</source>
        <translation>Skip the file</translation>
    </message>
    <message>
        <source>Replace the old one</source>
        <translation>Replace the old one</translation>
    </message>
</context>
<context>
    <name>SaveDefaultsForm</name>
    <message>
        <source>Next to each original</source>
        <translation>Next to each original</translation>
    </message>
    <message>
        <source>In one folder</source>
        <translation>In one folder</translation>
    </message>
    <message>
        <source>In place of originals</source>
        <translation>In place of originals</translation>
    </message>
    <message>
        <source>Use Downloads</source>
        <translation>Use Downloads</translation>
    </message>
    <message>
        <source>A folder for each day</source>
        <translation>A folder for each day</translation>
    </message>
    <message>
        <source>Keep the folders as they were</source>
        <translation>Keep the folders as they were</translation>
    </message>
    <message>
        <source>If the name is taken</source>
        <translation>If the name is taken</translation>
    </message>
    <message>
        <source>Add a number</source>
        <translation>Add a number</translation>
    </message>
    <message>
        <source>Skip the file</source>
        <translation>Skip the file</translation>
    </message>
    <message>
        <source>Replace, old one to the Bin</source>
        <translation>Replace, old one to the Bin</translation>
    </message>
</context>
<context>
    <name>SaveFooter</name>
    <message>
        <source>%1 · The originals go to the Bin.</source>
        <translation>%1 · The originals go to the Bin.</translation>
    </message>
</context>
<context>
    <name>SettingsScreen</name>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Appearance</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>Where new files go</source>
        <translation>Where new files go</translation>
    </message>
    <message>
        <source>When whole folders were dropped</source>
        <translation>When whole folders were dropped</translation>
    </message>
    <message>
        <source>When single files were dropped</source>
        <translation>When single files were dropped</translation>
    </message>
    <message>
        <source>Single files → Downloads › Tamble › today&apos;s date</source>
        <translation>Single files → Downloads › Tamble › today&apos;s date</translation>
    </message>
    <message>
        <source>Remember what I choose for a job</source>
        <translation>Remember what I choose for a job</translation>
    </message>
    <message>
        <source>The next job then starts with it.</source>
        <translation>The next job then starts with it.</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Work</translation>
    </message>
    <message>
        <source>How many files at once</source>
        <translation>How many files at once</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatic</translation>
    </message>
    <message>
        <source>How many files are worked on at the same time</source>
        <translation>How many files are worked on at the same time</translation>
    </message>
    <message>
        <source>Tell me when a job is done</source>
        <translation>Tell me when a job is done</translation>
    </message>
    <message>
        <source>With a notification, if the window isn&apos;t in front.</source>
        <translation>With a notification, if the window isn&apos;t in front.</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Advanced</translation>
    </message>
    <message>
        <source>Model for cutting out subjects</source>
        <translation>Model for cutting out subjects</translation>
    </message>
    <message>
        <source>The usual one</source>
        <translation>The usual one</translation>
    </message>
    <message>
        <source>Takes effect at the next start.</source>
        <translation>Takes effect at the next start.</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Find a tool</source>
        <translation>Find a tool</translation>
    </message>
    <message>
        <source>Ctrl K</source>
        <translation>Ctrl K</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sound</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Smart</source>
        <translation>Smart</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>Activity</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
</context>
<context>
    <name>SignatureEditor</name>
    <message>
        <source>Previous page</source>
        <translation>Previous page</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 of %2</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Next page</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Page %1</translation>
    </message>
</context>
<context>
    <name>SignaturePage</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 of %2</translation>
    </message>
    <message>
        <source>Arrows move the signature, plus and minus size it, Delete removes it.</source>
        <translation>Arrows move the signature, plus and minus size it, Delete removes it.</translation>
    </message>
    <message>
        <source>Signature</source>
        <translation>Signature</translation>
    </message>
    <message>
        <source>Remove the signature</source>
        <translation>Remove the signature</translation>
    </message>
</context>
<context>
    <name>SignatureTools</name>
    <message>
        <source>Black ink</source>
        <translation>Black ink</translation>
    </message>
    <message>
        <source>Blue ink</source>
        <translation>Blue ink</translation>
    </message>
    <message>
        <source>Reading the picture…</source>
        <translation>Reading the picture…</translation>
    </message>
    <message>
        <source>Draw here</source>
        <translation>Draw here</translation>
    </message>
    <message>
        <source>Drawing area for your signature</source>
        <translation>Drawing area for your signature</translation>
    </message>
    <message>
        <source>Undo the last stroke</source>
        <translation>Undo the last stroke</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Put it on the page</source>
        <translation>Put it on the page</translation>
    </message>
    <message>
        <source>From a picture…</source>
        <translation>From a picture…</translation>
    </message>
    <message>
        <source>Keep for next time</source>
        <translation>Keep for next time</translation>
    </message>
    <message>
        <source>Stays on this computer.</source>
        <translation>Stays on this computer.</translation>
    </message>
    <message>
        <source>Your signatures</source>
        <translation>Your signatures</translation>
    </message>
    <message>
        <source>Signature %1</source>
        <translation>Signature %1</translation>
    </message>
    <message>
        <source>Puts it on the page. Delete forgets it.</source>
        <translation>Puts it on the page. Delete forgets it.</translation>
    </message>
    <message>
        <source>Delete this signature</source>
        <translation>Delete this signature</translation>
    </message>
    <message>
        <source>Delete this signature?</source>
        <translation>Delete this signature?</translation>
    </message>
    <message>
        <source>It is gone for good. PDFs that are signed with it stay as they are.</source>
        <translation>It is gone for good. PDFs that are signed with it stay as they are.</translation>
    </message>
    <message>
        <source>Delete it</source>
        <translation>Delete it</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>Keep it</translation>
    </message>
</context>
<context>
    <name>TextBox</name>
    <message>
        <source>Hide the password</source>
        <translation>Hide the password</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Show the password</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%Ln file</numerusform>
            <numerusform>%Ln files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%Ln byte</numerusform>
            <numerusform>%Ln bytes</numerusform>
        </translation>
    </message>
    <message>
        <source>the same size</source>
        <translation>the same size</translation>
    </message>
    <message>
        <source>%1 % smaller</source>
        <translation>%1 % smaller</translation>
    </message>
    <message>
        <source>%1 % larger</source>
        <translation>%1 % larger</translation>
    </message>
    <message>
        <source>A few seconds left</source>
        <translation>A few seconds left</translation>
    </message>
    <message numerus="yes">
        <source>About %n second(s) left</source>
        <translation>
            <numerusform>About %Ln second left</numerusform>
            <numerusform>About %Ln seconds left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n minute(s) left</source>
        <translation>
            <numerusform>About %Ln minute left</numerusform>
            <numerusform>About %Ln minutes left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n hour(s) left</source>
        <translation>
            <numerusform>About %Ln hour left</numerusform>
            <numerusform>About %Ln hours left</numerusform>
        </translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Just now</translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s) ago</source>
        <translation>
            <numerusform>%Ln minute ago</numerusform>
            <numerusform>%Ln minutes ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s) ago</source>
        <translation>
            <numerusform>%Ln hour ago</numerusform>
            <numerusform>%Ln hours ago</numerusform>
        </translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Yesterday</translation>
    </message>
    <message>
        <source>d MMMM</source>
        <translation>d MMMM</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <translation>d MMMM yyyy</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s)</source>
        <translation>
            <numerusform>%Ln photo</numerusform>
            <numerusform>%Ln photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n video(s)</source>
        <translation>
            <numerusform>%Ln video</numerusform>
            <numerusform>%Ln videos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sound file(s)</source>
        <translation>
            <numerusform>%Ln sound file</numerusform>
            <numerusform>%Ln sound files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n PDF(s)</source>
        <translation>
            <numerusform>%Ln PDF</numerusform>
            <numerusform>%Ln PDFs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n document(s)</source>
        <translation>
            <numerusform>%Ln document</numerusform>
            <numerusform>%Ln documents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n other file(s)</source>
        <translation>
            <numerusform>%Ln other file</numerusform>
            <numerusform>%Ln other files</numerusform>
        </translation>
    </message>
    <message>
        <source>Already in that format (%1).</source>
        <translation>Already in that format (%1).</translation>
    </message>
    <message numerus="yes">
        <source>%n item(s) couldn&apos;t be read.</source>
        <translation>
            <numerusform>%Ln item couldn&apos;t be read.</numerusform>
            <numerusform>%Ln items couldn&apos;t be read.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n other(s)</source>
        <translation>
            <numerusform>%1 and %Ln other</numerusform>
            <numerusform>%1 and %Ln others</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no Bin for this disk, so the original was kept and the new file saved beside it.</source>
        <translation>There is no Bin for this disk, so the original was kept and the new file saved beside it.</translation>
    </message>
    <message>
        <source>There is no Bin for this disk, so the existing file was kept and the new file saved with a number.</source>
        <translation>There is no Bin for this disk, so the existing file was kept and the new file saved with a number.</translation>
    </message>
    <message>
        <source>This PDF is digitally signed. The new file is a changed one, so the seal no longer holds for it.</source>
        <translation>This PDF is digitally signed. The new file is a changed one, so the seal no longer holds for it.</translation>
    </message>
</context>
<context>
    <name>ToolCard</name>
    <message>
        <source>Not yet</source>
        <translation>Not yet</translation>
    </message>
</context>
<context>
    <name>ToolScreen</name>
    <message>
        <source>Preview</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
</context>
<context>
    <name>Undo</name>
    <message numerus="yes">
        <source>%n file(s) have their old names again.</source>
        <translation>
            <numerusform>%Ln file has its old name again.</numerusform>
            <numerusform>%Ln files have their old names again.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) couldn&apos;t get their old names back.</source>
        <translation>
            <numerusform>%Ln file couldn&apos;t get its old name back.</numerusform>
            <numerusform>%Ln files couldn&apos;t get their old names back.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new files removed,</source>
        <translation>
            <numerusform>%Ln new file removed,</numerusform>
            <numerusform>%Ln new files removed,</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new files removed.</source>
        <translation>
            <numerusform>%Ln new file removed.</numerusform>
            <numerusform>%Ln new files removed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files put back.</source>
        <translation>
            <numerusform>%Ln file put back.</numerusform>
            <numerusform>%Ln files put back.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items couldn&apos;t be put back (the Bin may have been emptied).</source>
        <translation>
            <numerusform>%Ln item couldn&apos;t be put back (the Bin may have been emptied).</numerusform>
            <numerusform>%Ln items couldn&apos;t be put back (the Bin may have been emptied).</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new files were changed after the job, so they were kept.</source>
        <translation>
            <numerusform>%Ln new file was changed after the job, so it was kept.</numerusform>
            <numerusform>%Ln new files were changed after the job, so they were kept.</numerusform>
        </translation>
    </message>
    <message>
        <source>Renaming “%1” was interrupted. All files have their old names.</source>
        <translation>Renaming “%1” was interrupted. All files have their old names.</translation>
    </message>
    <message numerus="yes">
        <source>Renaming “%1” was interrupted, and %n file(s) couldn&apos;t get their old names back. The next start tries it again.</source>
        <translation>
            <numerusform>Renaming “%1” was interrupted, and %Ln file couldn&apos;t get its old name back. The next start tries it again.</numerusform>
            <numerusform>Renaming “%1” was interrupted, and %Ln files couldn&apos;t get their old names back. The next start tries it again.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Renaming “%1” was interrupted when %n file(s) had their new names.</source>
        <translation>
            <numerusform>Renaming “%1” was interrupted when %Ln file had its new name.</numerusform>
            <numerusform>Renaming “%1” was interrupted when %Ln files had their new names.</numerusform>
        </translation>
    </message>
    <message>
        <source>A job over “%1” was interrupted while it saved.</source>
        <translation>A job over “%1” was interrupted while it saved.</translation>
    </message>
    <message numerus="yes">
        <source>%n new file(s) were saved.</source>
        <translation>
            <numerusform>%Ln new file was saved.</numerusform>
            <numerusform>%Ln new files were saved.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n original(s) are in the Bin.</source>
        <translation>
            <numerusform>%Ln original is in the Bin.</numerusform>
            <numerusform>%Ln originals are in the Bin.</numerusform>
        </translation>
    </message>
    <message>
        <source>You can put everything back.</source>
        <translation>You can put everything back.</translation>
    </message>
</context>
<context>
    <name>WorkScreen</name>
    <message>
        <source>Stopping…</source>
        <translation>Stopping…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Saving can&apos;t be interrupted, so that nothing is left half done.</source>
        <translation>Saving can&apos;t be interrupted, so that nothing is left half done.</translation>
    </message>
    <message>
        <source>Nothing is saved before everything is ready.</source>
        <translation>Nothing is saved before everything is ready.</translation>
    </message>
</context>
<context>
    <name>tamble::ActivityModel</name>
    <message>
        <source>This job was undone from Activity.</source>
        <translation>This job was undone from Activity.</translation>
    </message>
    <message numerus="yes">
        <source>%n saved</source>
        <translation>
            <numerusform>%Ln saved</numerusform>
            <numerusform>%Ln saved</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation>
            <numerusform>%Ln skipped</numerusform>
            <numerusform>%Ln skipped</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%Ln failed</numerusform>
            <numerusform>%Ln failed</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tamble::App</name>
    <message>
        <source>A job is running. Drop these once it is done.</source>
        <translation>A job is running. Drop these once it is done.</translation>
    </message>
    <message>
        <source>There are no files to paste. Copy some in the file manager first.</source>
        <translation>There are no files to paste. Copy some in the file manager first.</translation>
    </message>
    <message>
        <source>Stopped. Nothing was saved.</source>
        <translation>Stopped. Nothing was saved.</translation>
    </message>
</context>
<context>
    <name>tamble::ComparisonModel</name>
    <message>
        <source>Original · %1</source>
        <translation>Original · %1</translation>
    </message>
    <message>
        <source>Working it out…</source>
        <translation>Working it out…</translation>
    </message>
</context>
<context>
    <name>tamble::FileListModel</name>
    <message>
        <source>Single files</source>
        <translation>Single files</translation>
    </message>
</context>
<context>
    <name>tamble::Forecast</name>
    <message>
        <source>%1 → estimating…</source>
        <translation>%1 → estimating…</translation>
    </message>
    <message>
        <source>%1 → about %2</source>
        <translation>%1 → about %2</translation>
    </message>
</context>
<context>
    <name>tamble::InkModel</name>
    <message>
        <source>There is no writing to be seen in this picture.</source>
        <translation>There is no writing to be seen in this picture.</translation>
    </message>
</context>
<context>
    <name>tamble::IntakeModel</name>
    <message>
        <source>That isn&apos;t a file on this computer.</source>
        <translation>That isn&apos;t a file on this computer.</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
    <message numerus="yes">
        <source>%n folder(s)</source>
        <translation>
            <numerusform>%Ln folder</numerusform>
            <numerusform>%Ln folders</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n single file(s)</source>
        <translation>
            <numerusform>%Ln single file</numerusform>
            <numerusform>%Ln single files</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source> and </source>
        <translation> and </translation>
    </message>
    <message numerus="yes">
        <source>%n item(s)</source>
        <translation>
            <numerusform>%Ln item</numerusform>
            <numerusform>%Ln items</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tamble::JobModel</name>
    <message>
        <source>Saving %1 of %2</source>
        <translation>Saving %1 of %2</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Stopping…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message numerus="yes">
        <source>%n done</source>
        <translation>
            <numerusform>%Ln done</numerusform>
            <numerusform>%Ln done</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation>
            <numerusform>%Ln skipped</numerusform>
            <numerusform>%Ln skipped</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%Ln failed</numerusform>
            <numerusform>%Ln failed</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tamble::NamesModel</name>
    <message numerus="yes">
        <source>%n name(s) will change</source>
        <translation>
            <numerusform>%Ln name will change</numerusform>
            <numerusform>%Ln names will change</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n problem(s)</source>
        <translation>
            <numerusform>%Ln problem</numerusform>
            <numerusform>%Ln problems</numerusform>
        </translation>
    </message>
    <message>
        <source>Add numbers to tell the files apart.</source>
        <translation>Add numbers to tell the files apart.</translation>
    </message>
    <message numerus="yes">
        <source>%n name(s) can&apos;t be given yet.</source>
        <translation>
            <numerusform>%Ln name can&apos;t be given yet.</numerusform>
            <numerusform>%Ln names can&apos;t be given yet.</numerusform>
        </translation>
    </message>
    <message>
        <source>All names stay as they are so far.</source>
        <translation>All names stay as they are so far.</translation>
    </message>
</context>
<context>
    <name>tamble::PagesModel</name>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%Ln page</numerusform>
            <numerusform>%Ln pages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left out</source>
        <translation>
            <numerusform>%Ln left out</numerusform>
            <numerusform>%Ln left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>%Ln selected</numerusform>
            <numerusform>%Ln selected</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n to be deleted</source>
        <translation>
            <numerusform>%Ln to be deleted</numerusform>
            <numerusform>%Ln to be deleted</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n to be taken out</source>
        <translation>
            <numerusform>%Ln to be taken out</numerusform>
            <numerusform>%Ln to be taken out</numerusform>
        </translation>
    </message>
    <message>
        <source>Put the pages in order</source>
        <translation>Put the pages in order</translation>
    </message>
    <message>
        <source>Which pages should go?</source>
        <translation>Which pages should go?</translation>
    </message>
    <message>
        <source>Which pages do you want?</source>
        <translation>Which pages do you want?</translation>
    </message>
    <message>
        <source>Drag pages to where they belong. Select several to move, turn or leave them out together.</source>
        <translation>Drag pages to where they belong. Select several to move, turn or leave them out together.</translation>
    </message>
    <message>
        <source>Click the pages, or draw a frame around them. Hold Shift for all in between.</source>
        <translation>Click the pages, or draw a frame around them. Hold Shift for all in between.</translation>
    </message>
    <message>
        <source>Move, turn or leave out a page first.</source>
        <translation>Move, turn or leave out a page first.</translation>
    </message>
    <message>
        <source>Pick at least one page first.</source>
        <translation>Pick at least one page first.</translation>
    </message>
</context>
<context>
    <name>tamble::PreferencesModel</name>
    <message>
        <source>Couldn&apos;t remember that: the folder of the settings can&apos;t be written.</source>
        <translation>Couldn&apos;t remember that: the folder of the settings can&apos;t be written.</translation>
    </message>
</context>
<context>
    <name>tamble::ResultModel</name>
    <message numerus="yes">
        <source>%n saved</source>
        <translation>
            <numerusform>%Ln saved</numerusform>
            <numerusform>%Ln saved</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation>
            <numerusform>%Ln skipped</numerusform>
            <numerusform>%Ln skipped</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%Ln failed</numerusform>
            <numerusform>%Ln failed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped: %1</source>
        <translation>
            <numerusform>%Ln skipped: %1</numerusform>
            <numerusform>%Ln skipped: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Stopped</translation>
    </message>
    <message>
        <source>Nothing was saved. Your files are as they were.</source>
        <translation>Nothing was saved. Your files are as they were.</translation>
    </message>
    <message>
        <source>That didn&apos;t work</source>
        <translation>That didn&apos;t work</translation>
    </message>
    <message>
        <source>Nothing to do</source>
        <translation>Nothing to do</translation>
    </message>
    <message>
        <source>%1 → %2, %3</source>
        <translation>%1 → %2, %3</translation>
    </message>
    <message numerus="yes">
        <source>%n new file(s)</source>
        <translation>
            <numerusform>%Ln new file</numerusform>
            <numerusform>%Ln new files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n couldn&apos;t be done</source>
        <translation>
            <numerusform>%Ln couldn&apos;t be done</numerusform>
            <numerusform>%Ln couldn&apos;t be done</numerusform>
        </translation>
    </message>
    <message>
        <source>Single files</source>
        <translation>Single files</translation>
    </message>
</context>
<context>
    <name>tamble::SaveDefaults</name>
    <message>
        <source>Pictures</source>
        <translation>Pictures</translation>
    </message>
</context>
<context>
    <name>tamble::SavedSignaturesModel</name>
    <message numerus="yes">
        <source>This signature isn&apos;t kept for next time: %n are kept already.</source>
        <translation>
            <numerusform>This signature isn&apos;t kept for next time: %Ln is kept already.</numerusform>
            <numerusform>This signature isn&apos;t kept for next time: %Ln are kept already.</numerusform>
        </translation>
    </message>
    <message>
        <source>This signature couldn&apos;t be kept for next time.</source>
        <translation>This signature couldn&apos;t be kept for next time.</translation>
    </message>
    <message>
        <source>This signature couldn&apos;t be deleted.</source>
        <translation>This signature couldn&apos;t be deleted.</translation>
    </message>
</context>
<context>
    <name>tamble::SignatureModel</name>
    <message numerus="yes">
        <source>%n signature(s)</source>
        <translation>
            <numerusform>%Ln signature</numerusform>
            <numerusform>%Ln signatures</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tamble::ToolModel</name>
    <message>
        <source>None of these files is of a kind that this tool works with.</source>
        <translation>None of these files is of a kind that this tool works with.</translation>
    </message>
</context>
</TS>
