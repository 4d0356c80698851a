<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ActivityRow</name>
    <message>
        <source>Show in folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Undone</source>
        <translation>Rückgängig gemacht</translation>
    </message>
    <message>
        <source>Undoing…</source>
        <translation>Wird zurückgenommen…</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Remove the new files and put the originals back</source>
        <translation>Die neuen Dateien entfernen und die Originale zurückholen</translation>
    </message>
</context>
<context>
    <name>ActivityScreen</name>
    <message>
        <source>Activity</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Every job can be undone as long as its files are as it left them.</source>
        <translation>Jeder Auftrag lässt sich rückgängig machen, solange seine Dateien so sind, wie er sie hinterlassen hat.</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>Nothing yet</source>
        <translation>Noch nichts da</translation>
    </message>
    <message>
        <source>Finished jobs will show up here.</source>
        <translation>Hier erscheinen erledigte Aufträge.</translation>
    </message>
    <message>
        <source>Clear the list?</source>
        <translation>Liste leeren?</translation>
    </message>
    <message>
        <source>The jobs are forgotten and can&apos;t be undone any more. Your files stay as they are.</source>
        <translation>Die Aufträge werden vergessen und lassen sich nicht mehr rückgängig machen. Deine Dateien bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>Behalten</translation>
    </message>
</context>
<context>
    <name>AddButton</name>
    <message>
        <source>Add more…</source>
        <translation>Mehr hinzufügen…</translation>
    </message>
    <message>
        <source>Add files…</source>
        <translation>Dateien wählen…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Ordner wählen…</translation>
    </message>
</context>
<context>
    <name>CategoryScreen</name>
    <message>
        <source>All tools</source>
        <translation>Alle Werkzeuge</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Smart</source>
        <translation>Schlau</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Pick one, then drop your files on it.</source>
        <translation>Wähle eins und zieh dann deine Dateien darauf.</translation>
    </message>
    <message>
        <source>Shorten, shrink, convert.</source>
        <translation>Kürzen, verkleinern, umwandeln.</translation>
    </message>
    <message>
        <source>Record, trim, convert.</source>
        <translation>Aufnehmen, kürzen, umwandeln.</translation>
    </message>
    <message>
        <source>Convert, shrink, turn, clean.</source>
        <translation>Umwandeln, verkleinern, drehen, bereinigen.</translation>
    </message>
    <message>
        <source>Combine, split, sign, lock.</source>
        <translation>Zusammenfügen, teilen, unterschreiben, sperren.</translation>
    </message>
    <message>
        <source>Text from pictures, sound and long documents.</source>
        <translation>Text aus Bildern, Ton und langen Dokumenten.</translation>
    </message>
    <message>
        <source>Names for many files at once.</source>
        <translation>Namen für viele Dateien auf einmal.</translation>
    </message>
</context>
<context>
    <name>ComparisonEditor</name>
    <message>
        <source>Divider between before and after</source>
        <translation>Trennlinie zwischen vorher und nachher</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Drop files in, pick what to do, done.</source>
        <translation>Dateien hineinziehen, auswählen, fertig.</translation>
    </message>
    <message>
        <source>Files and folders to open.</source>
        <translation>Dateien und Ordner, die geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>DocumentTrouble</name>
    <message>
        <source>This PDF is locked</source>
        <translation>Diese PDF ist gesperrt</translation>
    </message>
    <message>
        <source>This PDF can&apos;t be shown</source>
        <translation>Diese PDF lässt sich nicht zeigen</translation>
    </message>
    <message>
        <source>Opening the PDF…</source>
        <translation>PDF wird geöffnet…</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Password of the PDF</source>
        <translation>Passwort der PDF</translation>
    </message>
    <message>
        <source>Open the PDF</source>
        <translation>PDF öffnen</translation>
    </message>
</context>
<context>
    <name>DoneScreen</name>
    <message>
        <source>Undone</source>
        <translation>Rückgängig gemacht</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Use for another tool</source>
        <translation>Weiterverwenden</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Remove the new files and put the originals back</source>
        <translation>Die neuen Dateien entfernen und die Originale zurückholen</translation>
    </message>
    <message>
        <source>Back to the tool</source>
        <translation>Zum Werkzeug</translation>
    </message>
    <message>
        <source>Start over</source>
        <translation>Von vorn</translation>
    </message>
    <message>
        <source>Couldn&apos;t be done</source>
        <translation>Nicht gelungen</translation>
    </message>
    <message>
        <source>Try these again</source>
        <translation>Noch einmal versuchen</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Gut zu wissen</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Undoing…</source>
        <translation>Wird zurückgenommen…</translation>
    </message>
</context>
<context>
    <name>DropCatcher</name>
    <message>
        <source>A job is running</source>
        <translation>Ein Auftrag läuft</translation>
    </message>
    <message>
        <source>Let go to add them</source>
        <translation>Zum Hinzufügen loslassen</translation>
    </message>
    <message>
        <source>Drop these once it is done.</source>
        <translation>Zieh sie herein, sobald er fertig ist.</translation>
    </message>
</context>
<context>
    <name>DropInvitation</name>
    <message>
        <source>Looking through it…</source>
        <translation>Wird durchgesehen…</translation>
    </message>
    <message>
        <source>Drop anything here</source>
        <translation>Zieh etwas hierher</translation>
    </message>
    <message>
        <source>Photos, videos, sound, PDFs, documents. Whole folders too. Everything happens on this computer.</source>
        <translation>Fotos, Videos, Ton, PDFs, Dokumente. Auch ganze Ordner. Alles bleibt auf diesem Computer.</translation>
    </message>
    <message>
        <source>Add files…</source>
        <translation>Dateien wählen…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Ordner wählen…</translation>
    </message>
</context>
<context>
    <name>DropScreen</name>
    <message>
        <source>Looking through it…</source>
        <translation>Wird durchgesehen…</translation>
    </message>
    <message>
        <source>Start over</source>
        <translation>Von vorn</translation>
    </message>
    <message>
        <source>What would you like to do?</source>
        <translation>Was möchtest du tun?</translation>
    </message>
    <message>
        <source>No tool works with these yet</source>
        <translation>Dafür gibt es noch kein Werkzeug</translation>
    </message>
    <message>
        <source>Everything else that fits</source>
        <translation>Was sonst noch passt</translation>
    </message>
    <message numerus="yes">
        <source>All %n tool(s)</source>
        <translation>
            <numerusform>Das %Ln Werkzeug</numerusform>
            <numerusform>Alle %Ln Werkzeuge</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Engine</name>
    <message>
        <source>“%1” is no longer there.</source>
        <translation>„%1“ ist nicht mehr da.</translation>
    </message>
    <message>
        <source>“%1” changed while it was being worked on.</source>
        <translation>„%1“ hat sich während der Arbeit daran verändert.</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>„%1“: %2</translation>
    </message>
    <message>
        <source>Something unexpected went wrong: %1</source>
        <translation>Etwas Unerwartetes ist schiefgegangen: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t write down what would be changed: %1</source>
        <translation>Was geändert würde, ließ sich nicht aufschreiben: %1</translation>
    </message>
    <message>
        <source>This file couldn&apos;t get its old name back; it is at “%1”. Undo tries it again.</source>
        <translation>Diese Datei konnte ihren alten Namen nicht zurückbekommen; sie heißt jetzt „%1“. „Rückgängig“ versucht es noch einmal.</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>videos, film, movie, clip, footage, mp4, mov, mkv, avi, webm, recording</source>
        <translation>Videos, Film, Filme, Clip, Aufnahme, Aufzeichnung, Handyvideo, mp4, mov, mkv, avi, webm</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>audio, music, song, recording, voice, track, mp3, m4a, wav, flac</source>
        <translation>Audio, Musik, Lied, Aufnahme, Stimme, Klang, Tonspur, mp3, m4a, wav, flac</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>photo, image, picture, pic, jpg, jpeg, png, heic, webp, raw, tiff, screenshot, scan</source>
        <translation>Foto, Bild, Bilder, Aufnahme, jpg, jpeg, png, heic, webp, raw, tiff, Bildschirmfoto, Scan</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>document, page, paper, file</source>
        <translation>Dokument, Seite, Seiten, Papier, Datei</translation>
    </message>
    <message>
        <source>Smart</source>
        <translation>Schlau</translation>
    </message>
    <message>
        <source>text, words, ai</source>
        <translation>Text, Texte, Wörter, KI</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>file, folder, any</source>
        <translation>Datei, Ordner, beliebig</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Umwandeln</translation>
    </message>
    <message>
        <source>WebP, JPEG, PNG, HEIC and more</source>
        <translation>WebP, JPEG, PNG, HEIC und mehr</translation>
    </message>
    <message>
        <source>change format, file type, export, save as, heic to jpg, heif to jpg, webp to png, png to jpg, jpg to png, jpg to webp, raw to jpg, tiff to jpg, avif, bmp, tif, jxl, jp2, ico, icns, iphone photos</source>
        <translation>Format ändern, Dateityp, konvertieren, wandeln, exportieren, speichern unter, heic in jpg, heif in jpg, webp in png, png in jpg, jpg in png, jpg in webp, raw in jpg, tiff in jpg, Handyfotos, iPhone Fotos</translation>
    </message>
    <message>
        <source>New format</source>
        <translation>Neues Format</translation>
    </message>
    <message>
        <source>WebP</source>
        <translation>WebP</translation>
    </message>
    <message>
        <source>Best for websites and blogs. Much smaller, same look.</source>
        <translation>Ideal für Webseiten und Blogs. Viel kleiner, gleiches Aussehen.</translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>Opens on every phone, computer and website.</source>
        <translation>Öffnet sich auf jedem Handy, Computer und jeder Webseite.</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>Keeps see-through backgrounds. Bigger files.</source>
        <translation>Behält durchsichtige Hintergründe. Größere Dateien.</translation>
    </message>
    <message>
        <source>HEIC</source>
        <translation>HEIC</translation>
    </message>
    <message>
        <source>Apple&apos;s photo format. Small and sharp.</source>
        <translation>Das Fotoformat von Apple. Klein und scharf.</translation>
    </message>
    <message>
        <source>More formats (TIFF, GIF, AVIF)…</source>
        <translation>Mehr Formate (TIFF, GIF, AVIF)…</translation>
    </message>
    <message>
        <source>TIFF</source>
        <translation>TIFF</translation>
    </message>
    <message>
        <source>For printing and editing. Very large files.</source>
        <translation>Zum Drucken und Bearbeiten. Sehr große Dateien.</translation>
    </message>
    <message>
        <source>GIF</source>
        <translation>GIF</translation>
    </message>
    <message>
        <source>Simple pictures and logos. Limited colours.</source>
        <translation>Einfache Bilder und Logos. Wenige Farben.</translation>
    </message>
    <message>
        <source>AVIF</source>
        <translation>AVIF</translation>
    </message>
    <message>
        <source>Newest web format. Very small files.</source>
        <translation>Neuestes Webformat. Sehr kleine Dateien.</translation>
    </message>
    <message>
        <source>Not sure? JPEG if you&apos;re sending photos to people, WebP if they&apos;re going on a website.</source>
        <translation>Unsicher? JPEG, wenn du Fotos verschickst, WebP, wenn sie auf eine Webseite kommen.</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>Noticeably smaller. Fine for chat apps.</source>
        <translation>Deutlich kleiner. Gut genug für Chats.</translation>
    </message>
    <message>
        <source>Balanced</source>
        <translation>Ausgewogen</translation>
    </message>
    <message>
        <source>You won&apos;t see a difference. Recommended.</source>
        <translation>Du siehst keinen Unterschied. Empfohlen.</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Beste</translation>
    </message>
    <message>
        <source>Almost no change. Smaller savings.</source>
        <translation>Fast keine Änderung. Spart weniger.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open this file. It may be damaged, or not the kind of file this tool works with.</source>
        <translation>Diese Datei ließ sich nicht öffnen. Vielleicht ist sie beschädigt oder von einer Art, mit der dieses Werkzeug nicht arbeitet.</translation>
    </message>
    <message>
        <source>Make smaller</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Smaller files that look the same</source>
        <translation>Kleinere Dateien, die gleich aussehen</translation>
    </message>
    <message>
        <source>compress, shrink, reduce, reduce size, file size, optimise, optimize, lighter, too big, too large, email, attachment, save space, kb, mb, upload, web, website, quality, lower quality, squeeze, minify</source>
        <translation>komprimieren, verkleinern, schrumpfen, verringern, Dateigröße, optimieren, leichter, zu groß, E-Mail, Mail, Anhang, Platz sparen, Speicherplatz, kb, mb, hochladen, Web, Webseite, Qualität, packen</translation>
    </message>
    <message>
        <source>PNG files can&apos;t get much smaller without changing format. For big savings, convert them to WebP or JPEG instead.</source>
        <translation>PNG-Dateien werden ohne Formatwechsel kaum kleiner. Viel mehr spart es, sie in WebP oder JPEG umzuwandeln.</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Größe ändern</translation>
    </message>
    <message>
        <source>Change the width and height</source>
        <translation>Breite und Höhe ändern</translation>
    </message>
    <message>
        <source>scale, change size, dimensions, pixels, px, resolution, thumbnail, shrink, smaller, resize for email, email, instagram, website, wallpaper, avatar, profile, longest side, megapixels, small</source>
        <translation>skalieren, Größe, Maße, Abmessungen, Pixel, px, Auflösung, Vorschaubild, verkleinern, kleiner, E-Mail, Instagram, Webseite, Hintergrundbild, Profilbild, längste Seite, Megapixel, klein</translation>
    </message>
    <message>
        <source>How big should they be?</source>
        <translation>Wie groß sollen sie sein?</translation>
    </message>
    <message>
        <source>3840 px · 4K screens</source>
        <translation>3840 px · 4K-Bildschirme</translation>
    </message>
    <message>
        <source>2560 px · big screens</source>
        <translation>2560 px · große Bildschirme</translation>
    </message>
    <message>
        <source>1920 px · good for most uses</source>
        <translation>1920 px · passt fast immer</translation>
    </message>
    <message>
        <source>1280 px · websites</source>
        <translation>1280 px · Webseiten</translation>
    </message>
    <message>
        <source>800 px · email and chat</source>
        <translation>800 px · E-Mail und Chat</translation>
    </message>
    <message>
        <source>Or longest side:</source>
        <translation>Oder längste Seite:</translation>
    </message>
    <message>
        <source>Longest side in pixels</source>
        <translation>Längste Seite in Pixeln</translation>
    </message>
    <message>
        <source>Photos are never made bigger than they already are.</source>
        <translation>Fotos werden nie größer, als sie schon sind.</translation>
    </message>
    <message>
        <source>Rotate or flip</source>
        <translation>Drehen oder spiegeln</translation>
    </message>
    <message>
        <source>Turn many photos at once</source>
        <translation>Viele Fotos auf einmal drehen</translation>
    </message>
    <message>
        <source>turn, mirror, flip, sideways, upside down, orientation, straighten, portrait, landscape, 90 degrees, 180, spin, wrong way round</source>
        <translation>drehen, rotieren, spiegeln, kippen, seitlich, kopfüber, Ausrichtung, gerade, Hochformat, Querformat, 90 Grad, 180, verkehrt herum</translation>
    </message>
    <message>
        <source>Turn or mirror</source>
        <translation>Drehen oder spiegeln</translation>
    </message>
    <message>
        <source>As it is</source>
        <translation>Wie es ist</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>Nach rechts drehen</translation>
    </message>
    <message>
        <source>Turn left</source>
        <translation>Nach links drehen</translation>
    </message>
    <message>
        <source>Turn upside down</source>
        <translation>Auf den Kopf stellen</translation>
    </message>
    <message>
        <source>Mirror left to right</source>
        <translation>Links und rechts vertauschen</translation>
    </message>
    <message>
        <source>Mirror upside down</source>
        <translation>Oben und unten vertauschen</translation>
    </message>
    <message>
        <source>Remove location &amp; camera info</source>
        <translation>Ort und Kameradaten entfernen</translation>
    </message>
    <message>
        <source>Share photos without hidden details</source>
        <translation>Fotos ohne versteckte Angaben teilen</translation>
    </message>
    <message>
        <source>gps, exif, metadata, meta data, privacy, private, geotag, coordinates, place, where, strip, anonymous, anonymise, hidden data, xmp, iptc, clean, delete location, date taken, camera details, map</source>
        <translation>GPS, Exif, Metadaten, Datenschutz, privat, Standort, Koordinaten, Ort, wo, anonym, anonymisieren, versteckte Daten, xmp, iptc, bereinigen, Standort löschen, Aufnahmedatum, Kamera, Karte</translation>
    </message>
    <message>
        <source>What should be removed?</source>
        <translation>Was soll entfernt werden?</translation>
    </message>
    <message>
        <source>Location only</source>
        <translation>Nur den Ort</translation>
    </message>
    <message>
        <source>Where the photo was taken. Camera and date stay.</source>
        <translation>Wo das Foto entstanden ist. Kamera und Datum bleiben.</translation>
    </message>
    <message>
        <source>Everything hidden</source>
        <translation>Alles Versteckte</translation>
    </message>
    <message>
        <source>Location, camera, dates and other details. Photos stay upright.</source>
        <translation>Ort, Kamera, Datum und andere Angaben. Fotos bleiben aufrecht.</translation>
    </message>
    <message>
        <source>Keep the picture as it is</source>
        <translation>Das Bild selbst nicht anrühren</translation>
    </message>
    <message>
        <source>When possible the picture itself isn&apos;t re-saved, so quality stays exactly the same.</source>
        <translation>Wenn möglich, wird das Bild selbst nicht neu gesichert. So bleibt die Qualität genau gleich.</translation>
    </message>
    <message>
        <source>Remove background</source>
        <translation>Hintergrund entfernen</translation>
    </message>
    <message>
        <source>Cut out the subject, see-through background</source>
        <translation>Motiv freistellen, Hintergrund durchsichtig</translation>
    </message>
    <message>
        <source>cut out, cutout, cut-out, transparent, transparency, erase background, delete background, isolate, subject, product, white background, sticker, clip art, logo, mask, passport, headshot, object, bg</source>
        <translation>freistellen, ausschneiden, durchsichtig, transparent, Transparenz, Hintergrund löschen, Motiv, Person, Produkt, weißer Hintergrund, Aufkleber, Logo, Maske, Passfoto, Porträt, Objekt</translation>
    </message>
    <message>
        <source>Cut out the subject</source>
        <translation>Motiv freistellen</translation>
    </message>
    <message>
        <source>Tamble finds the main subject (a person, pet or object) and makes the background see-through. Everything happens on your Mac.
Works best when the subject stands out clearly from the background.</source>
        <translation>Tamble findet das Hauptmotiv (einen Menschen, ein Tier oder einen Gegenstand) und macht den Hintergrund durchsichtig. Alles geschieht auf deinem Computer.
Am besten klappt es, wenn sich das Motiv deutlich vom Hintergrund abhebt.</translation>
    </message>
    <message>
        <source>For email, WhatsApp and Slack</source>
        <translation>Für E-Mail, WhatsApp und Slack</translation>
    </message>
    <message>
        <source>compress, shrink, reduce, reduce size, file size, lighter, too big, too large, attachment, email, whatsapp, upload, bitrate, mb, optimise, optimize</source>
        <translation>komprimieren, verkleinern, schrumpfen, verringern, Dateigröße, leichter, zu groß, Anhang, E-Mail, Mail, WhatsApp, hochladen, Bitrate, mb, optimieren</translation>
    </message>
    <message>
        <source>This version of Tamble can&apos;t do this yet.</source>
        <translation>Das kann diese Version von Tamble noch nicht.</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Kürzen</translation>
    </message>
    <message>
        <source>Cut the start or end</source>
        <translation>Anfang oder Ende wegschneiden</translation>
    </message>
    <message>
        <source>cut, shorten, cut out, clip, snip, split, beginning, length, edit, remove part</source>
        <translation>schneiden, kürzen, zuschneiden, ausschneiden, Clip, teilen, Anfang, Ende, Länge, bearbeiten, Stelle entfernen</translation>
    </message>
    <message>
        <source>720p, 1080p or custom</source>
        <translation>720p, 1080p oder eigene Größe</translation>
    </message>
    <message>
        <source>scale, dimensions, pixels, resolution, hd, full hd, 4k, 2k, 480p, downscale, smaller, size</source>
        <translation>skalieren, Maße, Abmessungen, Pixel, Auflösung, HD, Full HD, 4k, 2k, 480p, verkleinern, kleiner, Größe</translation>
    </message>
    <message>
        <source>Crop &amp; rotate</source>
        <translation>Zuschneiden und drehen</translation>
    </message>
    <message>
        <source>Fix sideways or badly framed video</source>
        <translation>Für Videos, die schief oder schlecht im Bild sind</translation>
    </message>
    <message>
        <source>crop, turn, flip, mirror, sideways, upside down, orientation, portrait, landscape, vertical, square, black bars, reframe, aspect ratio, zoom</source>
        <translation>zuschneiden, beschneiden, drehen, kippen, spiegeln, seitlich, kopfüber, Ausrichtung, Hochformat, Querformat, senkrecht, quadratisch, schwarze Balken, Ausschnitt, Seitenverhältnis</translation>
    </message>
    <message>
        <source>Change speed</source>
        <translation>Tempo ändern</translation>
    </message>
    <message>
        <source>Faster or slower, voices sound normal</source>
        <translation>Schneller oder langsamer, Stimmen klingen normal</translation>
    </message>
    <message>
        <source>speed up, slow down, slow motion, slow-mo, slowmo, timelapse, time lapse, fast forward, faster, slower, tempo, quicker, pitch</source>
        <translation>beschleunigen, verlangsamen, Zeitlupe, Zeitraffer, vorspulen, schneller, langsamer, Tempo, Geschwindigkeit, Tonhöhe</translation>
    </message>
    <message>
        <source>Join clips</source>
        <translation>Clips verbinden</translation>
    </message>
    <message>
        <source>Put several videos together</source>
        <translation>Mehrere Videos aneinanderhängen</translation>
    </message>
    <message>
        <source>merge, combine, concatenate, append, stitch, glue, join videos, add together, one film, edit</source>
        <translation>zusammenfügen, verbinden, vereinen, anhängen, aneinanderhängen, kleben, Videos verbinden, ein Film, bearbeiten</translation>
    </message>
    <message>
        <source>Remove sound</source>
        <translation>Ton entfernen</translation>
    </message>
    <message>
        <source>Silent video</source>
        <translation>Video ohne Ton</translation>
    </message>
    <message>
        <source>mute, silence, silent, delete audio, no audio, without sound, strip audio, quiet, volume off</source>
        <translation>stumm, stummschalten, still, Ton löschen, ohne Ton, leise, Lautstärke aus</translation>
    </message>
    <message>
        <source>Replace sound</source>
        <translation>Ton ersetzen</translation>
    </message>
    <message>
        <source>Use music or a voice-over instead</source>
        <translation>Musik oder eine Erzählstimme nehmen</translation>
    </message>
    <message>
        <source>add music, background music, soundtrack, dub, dubbing, voiceover, narration, swap audio, new audio, song, change audio</source>
        <translation>Musik hinzufügen, Hintergrundmusik, Filmmusik, vertonen, nachvertonen, Sprecher, Erzähler, Ton tauschen, neuer Ton, Lied, Ton ändern</translation>
    </message>
    <message>
        <source>Add subtitles</source>
        <translation>Untertitel hinzufügen</translation>
    </message>
    <message>
        <source>Burn captions into the video</source>
        <translation>Untertitel fest ins Video schreiben</translation>
    </message>
    <message>
        <source>captions, caption, srt, vtt, closed captions, cc, hardcode, text on video, translate, foreign, lyrics</source>
        <translation>Untertitel, Bildunterschrift, srt, vtt, cc, einbrennen, Text im Video, übersetzen, fremdsprachig, Liedtext</translation>
    </message>
    <message>
        <source>MP4, MOV or WebM</source>
        <translation>MP4, MOV oder WebM</translation>
    </message>
    <message>
        <source>change format, file type, export, save as, mov to mp4, mkv to mp4, avi to mp4, webm to mp4, wmv, h264, h265, hevc, codec, encode, transcode, iphone video</source>
        <translation>Format ändern, Dateityp, konvertieren, exportieren, speichern unter, mov in mp4, mkv in mp4, avi in mp4, webm in mp4, wmv, h264, h265, hevc, Codec, kodieren, iPhone Video, Handyvideo</translation>
    </message>
    <message>
        <source>Make a GIF</source>
        <translation>GIF machen</translation>
    </message>
    <message>
        <source>Short looping animation</source>
        <translation>Kurze Animation in Schleife</translation>
    </message>
    <message>
        <source>gif, animated gif, animation, loop, meme, sticker, video to gif, boomerang, reaction</source>
        <translation>GIF, animiertes GIF, Animation, Schleife, Meme, Aufkleber, Video in GIF, Reaktion</translation>
    </message>
    <message>
        <source>Get the audio</source>
        <translation>Ton herausholen</translation>
    </message>
    <message>
        <source>Save just the sound as MP3</source>
        <translation>Nur den Ton als MP3 sichern</translation>
    </message>
    <message>
        <source>extract audio, video to mp3, mp4 to mp3, mp3, m4a, wav, rip, sound only, music from video, soundtrack, podcast</source>
        <translation>Ton extrahieren, Video in mp3, mp4 in mp3, mp3, m4a, wav, nur Ton, Musik aus Video, Tonspur, Podcast</translation>
    </message>
    <message>
        <source>Record a voice note</source>
        <translation>Sprachnotiz aufnehmen</translation>
    </message>
    <message>
        <source>Saved straight to your Mac</source>
        <translation>Gleich auf deinem Computer gesichert</translation>
    </message>
    <message>
        <source>recorder, microphone, dictate, dictation, memo, voice memo, speak, talk, mic, capture, note</source>
        <translation>aufnehmen, Aufnahme, Mikrofon, diktieren, Diktat, Memo, Sprachmemo, sprechen, reden, Notiz</translation>
    </message>
    <message>
        <source>cut, shorten, ringtone, snip, clip, split, beginning, length, remove part, edit, silence</source>
        <translation>schneiden, kürzen, zuschneiden, Klingelton, teilen, Anfang, Ende, Länge, Stelle entfernen, bearbeiten, Stille</translation>
    </message>
    <message>
        <source>Clean up</source>
        <translation>Klang verbessern</translation>
    </message>
    <message>
        <source>Less background noise, even volume</source>
        <translation>Weniger Rauschen, gleichmäßige Lautstärke</translation>
    </message>
    <message>
        <source>noise, denoise, noise reduction, hiss, hum, normalise, normalize, loudness, louder, volume, enhance, improve, quiet, level, podcast, too quiet, echo</source>
        <translation>Rauschen, entrauschen, Lärm, Nebengeräusche, Brummen, normalisieren, Lautheit, lauter, Lautstärke, verbessern, leise, Pegel, Podcast, zu leise, Hall, Echo</translation>
    </message>
    <message>
        <source>Get audio from video</source>
        <translation>Ton aus Video holen</translation>
    </message>
    <message>
        <source>Save the sound of any video</source>
        <translation>Den Ton eines Videos sichern</translation>
    </message>
    <message>
        <source>extract audio, video to mp3, mp4 to mp3, mov to mp3, rip, music from video, sound only, mp4, mov</source>
        <translation>Ton extrahieren, Video in mp3, mp4 in mp3, mov in mp3, Musik aus Video, nur Ton, Tonspur, mp4, mov</translation>
    </message>
    <message>
        <source>MP3, M4A, WAV or FLAC</source>
        <translation>MP3, M4A, WAV oder FLAC</translation>
    </message>
    <message>
        <source>change format, file type, wav to mp3, m4a to mp3, flac to mp3, mp3 to wav, ogg to mp3, aac, ogg, opus, aiff, wma, bitrate, encode, export, save as, ringtone</source>
        <translation>Format ändern, Dateityp, konvertieren, wav in mp3, m4a in mp3, flac in mp3, mp3 in wav, ogg in mp3, aac, ogg, opus, aiff, wma, Bitrate, kodieren, exportieren, speichern unter, Klingelton</translation>
    </message>
    <message>
        <source>Combine PDFs</source>
        <translation>PDFs zusammenfügen</translation>
    </message>
    <message>
        <source>Many PDFs (and photos) into one</source>
        <translation>Viele PDFs (und Fotos) zu einer</translation>
    </message>
    <message>
        <source>merge, join, concatenate, append, put together, glue, bind, one file, single file, add pages, insert pages, stitch, collate, bundle, together, unite</source>
        <translation>zusammenführen, verbinden, vereinen, anhängen, zusammensetzen, kleben, binden, eine Datei, Seiten hinzufügen, Seiten einfügen, bündeln, zusammen</translation>
    </message>
    <message>
        <source>Name of the new PDF</source>
        <translation>Name der neuen PDF</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Password of locked PDFs</source>
        <translation>Passwort gesperrter PDFs</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>One PDF into several</source>
        <translation>Aus einer PDF werden mehrere</translation>
    </message>
    <message>
        <source>separate, divide, cut, break up, break apart, single pages, each page, burst, several files, chapters, part</source>
        <translation>trennen, aufteilen, schneiden, zerlegen, einzelne Seiten, jede Seite, mehrere Dateien, Kapitel, Teil</translation>
    </message>
    <message>
        <source>How should it be split?</source>
        <translation>Wie soll geteilt werden?</translation>
    </message>
    <message>
        <source>Every page on its own</source>
        <translation>Jede Seite für sich</translation>
    </message>
    <message>
        <source>One PDF per page.</source>
        <translation>Eine PDF pro Seite.</translation>
    </message>
    <message>
        <source>Every 10 pages</source>
        <translation>Alle 10 Seiten</translation>
    </message>
    <message>
        <source>A new PDF after each group.</source>
        <translation>Nach jeder Gruppe eine neue PDF.</translation>
    </message>
    <message>
        <source>Page groups</source>
        <translation>Seitengruppen</translation>
    </message>
    <message>
        <source>Each group you type becomes a PDF. For example 1-3, 5, 8-10</source>
        <translation>Jede eingetippte Gruppe wird eine PDF. Zum Beispiel 1-3, 5, 8-10</translation>
    </message>
    <message>
        <source>Type the pages to split, like 1-3, 5</source>
        <translation>Seiten eintippen, etwa 1-3, 5</translation>
    </message>
    <message>
        <source>The pieces go into a new folder named after the PDF. The original isn&apos;t changed.</source>
        <translation>Die Teile kommen in einen neuen Ordner, der wie die PDF heißt. Das Original bleibt unverändert.</translation>
    </message>
    <message>
        <source>Reorder &amp; rotate pages</source>
        <translation>Seiten ordnen und drehen</translation>
    </message>
    <message>
        <source>Drag pages into place</source>
        <translation>Seiten an ihren Platz ziehen</translation>
    </message>
    <message>
        <source>edit pages, order, sort, arrange, rearrange, move pages, swap pages, organise, organize, turn, sideways, upside down, orientation, landscape, portrait, flip, sequence</source>
        <translation>Seiten bearbeiten, Reihenfolge, sortieren, anordnen, umordnen, Seiten verschieben, Seiten tauschen, ordnen, drehen, seitlich, kopfüber, Ausrichtung, Querformat, Hochformat</translation>
    </message>
    <message>
        <source>The new order</source>
        <translation>Die neue Reihenfolge</translation>
    </message>
    <message>
        <source>Pages in their new order</source>
        <translation>Seiten in neuer Reihenfolge</translation>
    </message>
    <message>
        <source>For example 3, 1, 5-8</source>
        <translation>Zum Beispiel 3, 1, 5-8</translation>
    </message>
    <message>
        <source>At least one page has to stay.</source>
        <translation>Mindestens eine Seite muss bleiben.</translation>
    </message>
    <message>
        <source>Delete pages</source>
        <translation>Seiten löschen</translation>
    </message>
    <message>
        <source>Remove pages you don&apos;t need</source>
        <translation>Unnötige Seiten entfernen</translation>
    </message>
    <message>
        <source>remove pages, erase, drop, discard, blank pages, empty pages, get rid, cut</source>
        <translation>Seiten entfernen, löschen, verwerfen, leere Seiten, weiße Seiten, loswerden, wegschneiden</translation>
    </message>
    <message>
        <source>Which pages should go?</source>
        <translation>Welche Seiten sollen weg?</translation>
    </message>
    <message>
        <source>Pages to delete</source>
        <translation>Seiten zum Löschen</translation>
    </message>
    <message>
        <source>For example 2, 4-6</source>
        <translation>Zum Beispiel 2, 4-6</translation>
    </message>
    <message>
        <source>Take out pages</source>
        <translation>Seiten herausnehmen</translation>
    </message>
    <message>
        <source>Save some pages as a new PDF</source>
        <translation>Einige Seiten als neue PDF sichern</translation>
    </message>
    <message>
        <source>extract, extract pages, select, pick, keep pages, copy pages, save pages, pull out, single page, some pages, export</source>
        <translation>extrahieren, Seiten extrahieren, auswählen, Seiten behalten, Seiten kopieren, Seiten sichern, herausziehen, einzelne Seite, einige Seiten, exportieren</translation>
    </message>
    <message>
        <source>Which pages do you want?</source>
        <translation>Welche Seiten möchtest du?</translation>
    </message>
    <message>
        <source>Pages to take out</source>
        <translation>Seiten zum Herausnehmen</translation>
    </message>
    <message>
        <source>For example 1-3, 5</source>
        <translation>Zum Beispiel 1-3, 5</translation>
    </message>
    <message>
        <source>So it fits in an email</source>
        <translation>Damit sie in eine E-Mail passt</translation>
    </message>
    <message>
        <source>compress, shrink, reduce, reduce size, file size, lighter, too big, too large, attachment, optimise, optimize, upload, save space, kb, mb, squeeze</source>
        <translation>komprimieren, verkleinern, schrumpfen, verringern, Dateigröße, leichter, zu groß, Anhang, optimieren, hochladen, Platz sparen, Speicherplatz, kb, mb, packen</translation>
    </message>
    <message>
        <source>How much smaller?</source>
        <translation>Wie viel kleiner?</translation>
    </message>
    <message>
        <source>Smaller, text stays sharp</source>
        <translation>Kleiner, Text bleibt scharf</translation>
    </message>
    <message>
        <source>Pictures are re-saved for screens. Text can still be selected and searched. Recommended.</source>
        <translation>Bilder werden für Bildschirme neu gesichert. Text lässt sich weiter auswählen und durchsuchen. Empfohlen.</translation>
    </message>
    <message>
        <source>Smallest</source>
        <translation>Am kleinsten</translation>
    </message>
    <message>
        <source>Every page becomes a picture. Much smaller, but text can&apos;t be selected or searched.</source>
        <translation>Jede Seite wird zum Bild. Viel kleiner, aber Text lässt sich nicht mehr auswählen oder durchsuchen.</translation>
    </message>
    <message>
        <source>PDFs that are already small are left as they are.</source>
        <translation>PDFs, die schon klein sind, bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Sign</source>
        <translation>Unterschreiben</translation>
    </message>
    <message>
        <source>Draw your signature</source>
        <translation>Zeichne deine Unterschrift</translation>
    </message>
    <message>
        <source>signature, sign pdf, autograph, contract, agreement, initials, e-sign, esign, stamp, signing, paperwork</source>
        <translation>Unterschrift, PDF unterschreiben, signieren, Signatur, Autogramm, Vertrag, Vereinbarung, Kürzel, Stempel, Formular</translation>
    </message>
    <message>
        <source>Place it on any page. The PDF gets a picture of your signature, not a digital seal.</source>
        <translation>Setz sie auf eine beliebige Seite. Die PDF bekommt ein Bild deiner Unterschrift, kein digitales Siegel.</translation>
    </message>
    <message>
        <source>Add a password</source>
        <translation>Passwort hinzufügen</translation>
    </message>
    <message>
        <source>Only people with the password can open it</source>
        <translation>Nur wer das Passwort kennt, kann sie öffnen</translation>
    </message>
    <message>
        <source>lock, protect, encrypt, encryption, secure, security, secret, confidential, private, privacy, safe, restrict</source>
        <translation>sperren, schützen, verschlüsseln, Verschlüsselung, sichern, Sicherheit, geheim, vertraulich, privat, Datenschutz, Kennwort</translation>
    </message>
    <message>
        <source>Type a password (at least 4 characters)</source>
        <translation>Passwort (mindestens 4 Zeichen)</translation>
    </message>
    <message>
        <source>Remove a password</source>
        <translation>Passwort entfernen</translation>
    </message>
    <message>
        <source>When you know the password</source>
        <translation>Wenn du das Passwort kennst</translation>
    </message>
    <message>
        <source>unlock, decrypt, unprotect, open, forgot, without password, unsecure, locked, protected, encrypted, restrictions, no password</source>
        <translation>entsperren, entschlüsseln, Schutz aufheben, öffnen, vergessen, ohne Passwort, gesperrt, geschützt, verschlüsselt, Einschränkungen, Kennwort</translation>
    </message>
    <message>
        <source>The password that opens the PDF</source>
        <translation>Das Passwort, das die PDF öffnet</translation>
    </message>
    <message>
        <source>Photos to PDF</source>
        <translation>Fotos zu PDF</translation>
    </message>
    <message>
        <source>One photo per page</source>
        <translation>Ein Foto pro Seite</translation>
    </message>
    <message>
        <source>photo to pdf, jpg to pdf, jpeg to pdf, png to pdf, heic to pdf, image to pdf, picture to pdf, scan, scans, scanned, receipts, album, make pdf, create pdf, convert, save as pdf, homework, documents, screenshots</source>
        <translation>Foto in PDF, jpg in pdf, jpeg in pdf, png in pdf, heic in pdf, Bild in PDF, Scan, gescannt, Belege, Quittungen, Album, PDF machen, PDF erstellen, umwandeln, als PDF speichern, Hausaufgaben, Dokumente, Bildschirmfotos</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Seitengröße</translation>
    </message>
    <message>
        <source>Same shape as each photo</source>
        <translation>Format wie das Foto</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>Turned to each photo&apos;s own orientation.</source>
        <translation>Jeweils so gedreht wie das Foto.</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>US-Brief</translation>
    </message>
    <message>
        <source>White border</source>
        <translation>Weißer Rand</translation>
    </message>
    <message>
        <source>A margin around each photo.</source>
        <translation>Ein Rand um jedes Foto.</translation>
    </message>
    <message>
        <source>PDF to photos</source>
        <translation>PDF zu Fotos</translation>
    </message>
    <message>
        <source>Every page as an image</source>
        <translation>Jede Seite als Bild</translation>
    </message>
    <message>
        <source>pdf to jpg, pdf to jpeg, pdf to png, pdf to image, pdf to picture, convert, export, screenshot, thumbnail, render, preview, rasterise, rasterize, slides</source>
        <translation>pdf in jpg, pdf in jpeg, pdf in png, PDF in Bild, umwandeln, exportieren, Bildschirmfoto, Vorschaubild, Vorschau, Folien</translation>
    </message>
    <message>
        <source>Format of the pictures</source>
        <translation>Format der Bilder</translation>
    </message>
    <message>
        <source>Text stays perfectly sharp. Bigger files.</source>
        <translation>Text bleibt ganz scharf. Größere Dateien.</translation>
    </message>
    <message>
        <source>Best for websites and blogs.</source>
        <translation>Ideal für Webseiten und Blogs.</translation>
    </message>
    <message>
        <source>More formats (HEIC, TIFF, GIF, AVIF)…</source>
        <translation>Mehr Formate (HEIC, TIFF, GIF, AVIF)…</translation>
    </message>
    <message>
        <source>Small and sharp.</source>
        <translation>Klein und scharf.</translation>
    </message>
    <message>
        <source>Limited colours.</source>
        <translation>Wenige Farben.</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Schärfe</translation>
    </message>
    <message>
        <source>Dots per inch</source>
        <translation>Punkte pro Zoll</translation>
    </message>
    <message>
        <source>150 suits screens, 300 suits printing.</source>
        <translation>150 genügt für Bildschirme, 300 zum Drucken.</translation>
    </message>
    <message>
        <source>Speech to text</source>
        <translation>Sprache zu Text</translation>
    </message>
    <message>
        <source>Subtitles or a text file, privately</source>
        <translation>Untertitel oder Textdatei, ganz privat</translation>
    </message>
    <message>
        <source>transcribe, transcript, transcription, dictation, captions, subtitles, srt, interview, meeting, lecture, voice to text, audio to text, video to text, mp3 to text, minutes, notes, write down, podcast</source>
        <translation>abtippen, Abschrift, Transkript, transkribieren, Diktat, Untertitel, srt, Interview, Besprechung, Vorlesung, Stimme zu Text, Ton zu Text, Video zu Text, mp3 in Text, Protokoll, Notizen, aufschreiben, Podcast</translation>
    </message>
    <message>
        <source>Copy text from images</source>
        <translation>Text aus Bildern kopieren</translation>
    </message>
    <message>
        <source>From photos, scans and PDFs</source>
        <translation>Aus Fotos, Scans und PDFs</translation>
    </message>
    <message>
        <source>ocr, read text, recognise, recognize, extract text, scan, scanned, searchable, screenshot, image to text, photo to text, picture to text, pdf to text, handwriting, receipt, digitise, digitize, jpg, png</source>
        <translation>ocr, Text lesen, Texterkennung, erkennen, Text extrahieren, Scan, gescannt, durchsuchbar, Bildschirmfoto, Bild zu Text, Foto zu Text, PDF zu Text, Handschrift, Beleg, digitalisieren, jpg, png</translation>
    </message>
    <message>
        <source>Summarise</source>
        <translation>Zusammenfassen</translation>
    </message>
    <message>
        <source>Short version of long text</source>
        <translation>Kurzfassung eines langen Textes</translation>
    </message>
    <message>
        <source>summary, summarize, shorten, shorter, tldr, key points, abstract, brief, digest, overview, article, docx, doc, odt, rtf, txt, word, document, essay, report, pdf, minutes</source>
        <translation>Zusammenfassung, kürzen, kürzer, Kernpunkte, Überblick, Auszug, Artikel, docx, doc, odt, rtf, txt, Word, Dokument, Aufsatz, Bericht, PDF, Protokoll</translation>
    </message>
    <message>
        <source>Translate</source>
        <translation>Übersetzen</translation>
    </message>
    <message>
        <source>Text, documents and subtitles, offline</source>
        <translation>Text, Dokumente und Untertitel, ohne Internet</translation>
    </message>
    <message>
        <source>translation, translator, language, english, german, french, spanish, italian, portuguese, foreign, docx, doc, odt, rtf, txt, srt, vtt, word, pdf, letter</source>
        <translation>Übersetzung, Übersetzer, Sprache, Englisch, Deutsch, Französisch, Spanisch, Italienisch, Portugiesisch, Fremdsprache, docx, doc, odt, rtf, txt, srt, vtt, Word, PDF, Brief</translation>
    </message>
    <message>
        <source>Rename many files</source>
        <translation>Viele Dateien umbenennen</translation>
    </message>
    <message>
        <source>Numbered names with a live preview</source>
        <translation>Nummerierte Namen mit Vorschau</translation>
    </message>
    <message>
        <source>batch rename, bulk rename, file names, filenames, number, numbering, sequence, prefix, suffix, replace text, find and replace, find, date in name, counter, upper case, lower case, extension, photos, pictures, label, title, sort</source>
        <translation>umbenennen, Dateinamen, Namen ändern, Nummer, nummerieren, Reihenfolge, Vorsilbe, Endung, Text ersetzen, suchen und ersetzen, suchen, Datum im Namen, Zähler, Großbuchstaben, Kleinbuchstaben, Dateiendung, Fotos, Bilder, Titel, sortieren</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Neuer Name</translation>
    </message>
    <message>
        <source>New name, e.g. Goa trip</source>
        <translation>Neuer Name, etwa Reise nach Goa</translation>
    </message>
    <message>
        <source>Keep the current names</source>
        <translation>Bisherige Namen behalten</translation>
    </message>
    <message>
        <source>Find and replace</source>
        <translation>Suchen und ersetzen</translation>
    </message>
    <message>
        <source>Text to look for</source>
        <translation>Gesuchter Text</translation>
    </message>
    <message>
        <source>What replaces it</source>
        <translation>Ersatz dafür</translation>
    </message>
    <message>
        <source>Only with the same upper and lower case letters</source>
        <translation>Nur bei gleicher Groß- und Kleinschreibung</translation>
    </message>
    <message>
        <source>More text</source>
        <translation>Zusätzlicher Text</translation>
    </message>
    <message>
        <source>Before the name</source>
        <translation>Vor dem Namen</translation>
    </message>
    <message>
        <source>After the name</source>
        <translation>Nach dem Namen</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Nummern</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>First number</source>
        <translation>Erste Nummer</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>Stellen</translation>
    </message>
    <message>
        <source>Between the number and the name</source>
        <translation>Zwischen Nummer und Name</translation>
    </message>
    <message>
        <source>Upper and lower case</source>
        <translation>Groß- und Kleinschreibung</translation>
    </message>
    <message>
        <source>lower case</source>
        <translation>alles klein</translation>
    </message>
    <message>
        <source>UPPER CASE</source>
        <translation>ALLES GROSS</translation>
    </message>
    <message>
        <source>Title Case</source>
        <translation>Wortanfang Groß</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Endung</translation>
    </message>
    <message>
        <source>Change the extension</source>
        <translation>Endung ändern</translation>
    </message>
    <message>
        <source>New extension</source>
        <translation>Neue Endung</translation>
    </message>
    <message>
        <source>Couldn&apos;t open this file. It may be damaged.</source>
        <translation>Diese Datei ließ sich nicht öffnen. Vielleicht ist sie beschädigt.</translation>
    </message>
    <message>
        <source>Rename the files</source>
        <translation>Dateien umbenennen</translation>
    </message>
    <message>
        <source>The files themselves get their new names. Undo puts the old names back.</source>
        <translation>Die Dateien selbst bekommen ihre neuen Namen. „Rückgängig“ holt die alten zurück.</translation>
    </message>
    <message>
        <source>Make renamed copies</source>
        <translation>Umbenannte Kopien</translation>
    </message>
    <message>
        <source>Your files keep their names; copies with the new names are saved.</source>
        <translation>Deine Dateien behalten ihre Namen; gesichert werden Kopien mit den neuen.</translation>
    </message>
    <message>
        <source>This Mac can&apos;t save that format.</source>
        <translation>Dieser Computer kann dieses Format nicht sichern.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read the picture inside this file.</source>
        <translation>Das Bild in dieser Datei ließ sich nicht lesen.</translation>
    </message>
    <message>
        <source>Saving the new file failed.</source>
        <translation>Die neue Datei ließ sich nicht sichern.</translation>
    </message>
    <message>
        <source>Too big for WebP (16,383 pixels per side at most). Make it smaller first.</source>
        <translation>Zu groß für WebP (höchstens 16.383 Pixel pro Seite). Verkleinere es zuerst.</translation>
    </message>
    <message>
        <source>Animated images aren&apos;t supported yet, so this one was left alone.</source>
        <translation>Bewegte Bilder gehen noch nicht, darum blieb dieses, wie es ist.</translation>
    </message>
    <message>
        <source>This file has several pages. Only single-page images are supported, so it was left alone.</source>
        <translation>Diese Datei hat mehrere Seiten. Es gehen nur Bilder mit einer Seite, darum blieb sie, wie sie ist.</translation>
    </message>
    <message>
        <source>Couldn&apos;t find a clear subject to cut out.</source>
        <translation>Es ließ sich kein klares Motiv zum Freistellen finden.</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove the background from this photo.</source>
        <translation>Der Hintergrund dieses Fotos ließ sich nicht entfernen.</translation>
    </message>
    <message>
        <source>This PDF has a password. Type it in and try again.</source>
        <translation>Diese PDF hat ein Passwort. Tipp es ein und versuch es noch einmal.</translation>
    </message>
    <message>
        <source>That password didn&apos;t open this PDF.</source>
        <translation>Dieses Passwort hat die PDF nicht geöffnet.</translation>
    </message>
    <message>
        <source>Those page numbers don&apos;t fit this PDF.</source>
        <translation>Diese Seitenzahlen passen nicht zu dieser PDF.</translation>
    </message>
    <message>
        <source>No pages would be left.</source>
        <translation>Es würden keine Seiten übrig bleiben.</translation>
    </message>
    <message>
        <source>Saving the new PDF failed.</source>
        <translation>Die neue PDF ließ sich nicht sichern.</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove the password from this PDF.</source>
        <translation>Das Passwort dieser PDF ließ sich nicht entfernen.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read one of the photos.</source>
        <translation>Eines der Fotos ließ sich nicht lesen.</translation>
    </message>
    <message>
        <source>Couldn&apos;t draw one of the pages.</source>
        <translation>Eine der Seiten ließ sich nicht zeichnen.</translation>
    </message>
    <message>
        <source>A page would be too large for this format. Choose a smaller resolution.</source>
        <translation>Eine Seite wäre zu groß für dieses Format. Wähle eine kleinere Auflösung.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read the signature picture.</source>
        <translation>Das Bild der Unterschrift ließ sich nicht lesen.</translation>
    </message>
    <message>
        <source>Draw or choose a signature first.</source>
        <translation>Zeichne oder wähle zuerst eine Unterschrift.</translation>
    </message>
    <message>
        <source>The signature doesn&apos;t fit on its page.</source>
        <translation>Die Unterschrift passt nicht auf ihre Seite.</translation>
    </message>
    <message>
        <source>Say which pages first, like 1-3, 5.</source>
        <translation>Sag zuerst, welche Seiten, etwa 1-3, 5.</translation>
    </message>
    <message>
        <source>Two files would get this name</source>
        <translation>Zwei Dateien würden so heißen</translation>
    </message>
    <message>
        <source>Another file already has this name</source>
        <translation>Eine andere Datei heißt schon so</translation>
    </message>
    <message>
        <source>The name would be empty</source>
        <translation>Der Name wäre leer</translation>
    </message>
    <message>
        <source>The name would be too long</source>
        <translation>Der Name wäre zu lang</translation>
    </message>
    <message>
        <source>A part of Tamble couldn&apos;t be started. Install Tamble again.</source>
        <translation>Ein Teil von Tamble ließ sich nicht starten. Installiere Tamble noch einmal.</translation>
    </message>
    <message>
        <source>This file is no longer there.</source>
        <translation>Diese Datei ist nicht mehr da.</translation>
    </message>
    <message>
        <source>This file changed while it was being worked on.</source>
        <translation>Diese Datei hat sich während der Arbeit daran verändert.</translation>
    </message>
    <message>
        <source>Processor finished without writing a file</source>
        <translation>Das Werkzeug ist fertig geworden, ohne eine Datei zu schreiben</translation>
    </message>
    <message>
        <source>Combiner finished without writing a file</source>
        <translation>Beim Zusammenfügen ist keine Datei entstanden</translation>
    </message>
    <message>
        <source>No staging folder</source>
        <translation>Es gibt keinen Zwischenordner</translation>
    </message>
    <message>
        <source>it was cancelled by itself.</source>
        <translation>Der Auftrag hat von selbst abgebrochen.</translation>
    </message>
    <message>
        <source>no cause was given.</source>
        <translation>Eine Ursache wurde nicht genannt.</translation>
    </message>
    <message>
        <source>Nothing was renamed: a file couldn&apos;t be renamed (it may be open or locked), so all the old names were kept.</source>
        <translation>Nichts wurde umbenannt: Eine Datei ließ sich nicht umbenennen (vielleicht ist sie geöffnet oder gesperrt), darum sind alle alten Namen geblieben.</translation>
    </message>
    <message>
        <source>There is no room for previews on this computer.</source>
        <translation>Auf diesem Computer ist kein Platz für Vorschauen.</translation>
    </message>
    <message>
        <source>The tool made no file.</source>
        <translation>Das Werkzeug hat keine Datei gemacht.</translation>
    </message>
    <message>
        <source>There is already a file with this name</source>
        <translation>Es gibt schon eine Datei mit diesem Namen</translation>
    </message>
    <message>
        <source>The new file wouldn&apos;t be smaller</source>
        <translation>Die neue Datei wäre nicht kleiner</translation>
    </message>
    <message>
        <source>This PDF doesn&apos;t have a password</source>
        <translation>Diese PDF hat kein Passwort</translation>
    </message>
    <message>
        <source>This file already has its new name</source>
        <translation>Diese Datei hat ihren neuen Namen schon</translation>
    </message>
    <message>
        <source>Shortcuts to other folders aren&apos;t followed.</source>
        <translation>Verknüpfungen zu anderen Ordnern wird nicht gefolgt.</translation>
    </message>
    <message>
        <source>App packages and photo libraries aren&apos;t opened.</source>
        <translation>Programmpakete und Fotomediatheken werden nicht geöffnet.</translation>
    </message>
    <message>
        <source>The folder you chose is empty or couldn&apos;t be read.</source>
        <translation>Der gewählte Ordner ist leer oder nicht lesbar.</translation>
    </message>
    <message numerus="yes">
        <source>Convert %n photo(s)</source>
        <translation>
            <numerusform>%Ln Foto umwandeln</numerusform>
            <numerusform>%Ln Fotos umwandeln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Converting %n photo(s)</source>
        <translation>
            <numerusform>%Ln Foto wird umgewandelt</numerusform>
            <numerusform>%Ln Fotos werden umgewandelt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) converted</source>
        <translation>
            <numerusform>%Ln Foto umgewandelt</numerusform>
            <numerusform>%Ln Fotos umgewandelt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Make %n photo(s) smaller</source>
        <translation>
            <numerusform>%Ln Foto verkleinern</numerusform>
            <numerusform>%Ln Fotos verkleinern</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Making %n photo(s) smaller</source>
        <translation>
            <numerusform>%Ln Foto wird verkleinert</numerusform>
            <numerusform>%Ln Fotos werden verkleinert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) made smaller</source>
        <translation>
            <numerusform>%Ln Foto verkleinert</numerusform>
            <numerusform>%Ln Fotos verkleinert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Resize %n photo(s)</source>
        <translation>
            <numerusform>Größe von %Ln Foto ändern</numerusform>
            <numerusform>Größe von %Ln Fotos ändern</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Resizing %n photo(s)</source>
        <translation>
            <numerusform>Größe von %Ln Foto wird geändert</numerusform>
            <numerusform>Größe von %Ln Fotos wird geändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) resized</source>
        <translation>
            <numerusform>Größe von %Ln Foto geändert</numerusform>
            <numerusform>Größe von %Ln Fotos geändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Turn %n photo(s)</source>
        <translation>
            <numerusform>%Ln Foto drehen</numerusform>
            <numerusform>%Ln Fotos drehen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Turning %n photo(s)</source>
        <translation>
            <numerusform>%Ln Foto wird gedreht</numerusform>
            <numerusform>%Ln Fotos werden gedreht</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) turned</source>
        <translation>
            <numerusform>%Ln Foto gedreht</numerusform>
            <numerusform>%Ln Fotos gedreht</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Clean %n photo(s)</source>
        <translation>
            <numerusform>%Ln Foto bereinigen</numerusform>
            <numerusform>%Ln Fotos bereinigen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Cleaning %n photo(s)</source>
        <translation>
            <numerusform>%Ln Foto wird bereinigt</numerusform>
            <numerusform>%Ln Fotos werden bereinigt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) cleaned</source>
        <translation>
            <numerusform>%Ln Foto bereinigt</numerusform>
            <numerusform>%Ln Fotos bereinigt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove %n background(s)</source>
        <translation>
            <numerusform>%Ln Hintergrund entfernen</numerusform>
            <numerusform>%Ln Hintergründe entfernen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Removing %n background(s)</source>
        <translation>
            <numerusform>%Ln Hintergrund wird entfernt</numerusform>
            <numerusform>%Ln Hintergründe werden entfernt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n background(s) removed</source>
        <translation>
            <numerusform>%Ln Hintergrund entfernt</numerusform>
            <numerusform>%Ln Hintergründe entfernt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Combine %n file(s)</source>
        <translation>
            <numerusform>%Ln Datei zusammenfügen</numerusform>
            <numerusform>%Ln Dateien zusammenfügen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Combining %n file(s)</source>
        <translation>
            <numerusform>%Ln Datei wird zusammengefügt</numerusform>
            <numerusform>%Ln Dateien werden zusammengefügt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) combined</source>
        <translation>
            <numerusform>%Ln Datei zusammengefügt</numerusform>
            <numerusform>%Ln Dateien zusammengefügt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Split %n PDF(s)</source>
        <translation>
            <numerusform>%Ln PDF teilen</numerusform>
            <numerusform>%Ln PDFs teilen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Splitting %n PDF(s)</source>
        <translation>
            <numerusform>%Ln PDF wird geteilt</numerusform>
            <numerusform>%Ln PDFs werden geteilt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n PDF(s) split</source>
        <translation>
            <numerusform>%Ln PDF geteilt</numerusform>
            <numerusform>%Ln PDFs geteilt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reorder %n PDF(s)</source>
        <translation>
            <numerusform>%Ln PDF ordnen</numerusform>
            <numerusform>%Ln PDFs ordnen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reordering %n PDF(s)</source>
        <translation>
            <numerusform>%Ln PDF wird geordnet</numerusform>
            <numerusform>%Ln PDFs werden geordnet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n PDF(s) reordered</source>
        <translation>
            <numerusform>%Ln PDF geordnet</numerusform>
            <numerusform>%Ln PDFs geordnet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete pages from %n PDF(s)</source>
        <translation>
            <numerusform>Seiten aus %Ln PDF löschen</numerusform>
            <numerusform>Seiten aus %Ln PDFs löschen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deleting pages from %n PDF(s)</source>
        <translation>
            <numerusform>Seiten aus %Ln PDF werden gelöscht</numerusform>
            <numerusform>Seiten aus %Ln PDFs werden gelöscht</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Pages deleted from %n PDF(s)</source>
        <translation>
            <numerusform>Seiten aus %Ln PDF gelöscht</numerusform>
            <numerusform>Seiten aus %Ln PDFs gelöscht</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Take pages out of %n PDF(s)</source>
        <translation>
            <numerusform>Seiten aus %Ln PDF nehmen</numerusform>
            <numerusform>Seiten aus %Ln PDFs nehmen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Taking pages out of %n PDF(s)</source>
        <translation>
            <numerusform>Seiten werden aus %Ln PDF genommen</numerusform>
            <numerusform>Seiten werden aus %Ln PDFs genommen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Pages taken out of %n PDF(s)</source>
        <translation>
            <numerusform>Seiten aus %Ln PDF genommen</numerusform>
            <numerusform>Seiten aus %Ln PDFs genommen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Make %n PDF(s) smaller</source>
        <translation>
            <numerusform>%Ln PDF verkleinern</numerusform>
            <numerusform>%Ln PDFs verkleinern</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Making %n PDF(s) smaller</source>
        <translation>
            <numerusform>%Ln PDF wird verkleinert</numerusform>
            <numerusform>%Ln PDFs werden verkleinert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n PDF(s) made smaller</source>
        <translation>
            <numerusform>%Ln PDF verkleinert</numerusform>
            <numerusform>%Ln PDFs verkleinert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Sign %n PDF(s)</source>
        <translation>
            <numerusform>%Ln PDF unterschreiben</numerusform>
            <numerusform>%Ln PDFs unterschreiben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Signing %n PDF(s)</source>
        <translation>
            <numerusform>%Ln PDF wird unterschrieben</numerusform>
            <numerusform>%Ln PDFs werden unterschrieben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n PDF(s) signed</source>
        <translation>
            <numerusform>%Ln PDF unterschrieben</numerusform>
            <numerusform>%Ln PDFs unterschrieben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Lock %n PDF(s)</source>
        <translation>
            <numerusform>%Ln PDF sperren</numerusform>
            <numerusform>%Ln PDFs sperren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Locking %n PDF(s)</source>
        <translation>
            <numerusform>%Ln PDF wird gesperrt</numerusform>
            <numerusform>%Ln PDFs werden gesperrt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n PDF(s) locked</source>
        <translation>
            <numerusform>%Ln PDF gesperrt</numerusform>
            <numerusform>%Ln PDFs gesperrt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlock %n PDF(s)</source>
        <translation>
            <numerusform>%Ln PDF entsperren</numerusform>
            <numerusform>%Ln PDFs entsperren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlocking %n PDF(s)</source>
        <translation>
            <numerusform>%Ln PDF wird entsperrt</numerusform>
            <numerusform>%Ln PDFs werden entsperrt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n PDF(s) unlocked</source>
        <translation>
            <numerusform>%Ln PDF entsperrt</numerusform>
            <numerusform>%Ln PDFs entsperrt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Make a PDF of %n photo(s)</source>
        <translation>
            <numerusform>PDF aus %Ln Foto machen</numerusform>
            <numerusform>PDF aus %Ln Fotos machen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Making a PDF of %n photo(s)</source>
        <translation>
            <numerusform>Aus %Ln Foto wird eine PDF</numerusform>
            <numerusform>Aus %Ln Fotos wird eine PDF</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A PDF made of %n photo(s)</source>
        <translation>
            <numerusform>Eine PDF aus %Ln Foto</numerusform>
            <numerusform>Eine PDF aus %Ln Fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Turn %n PDF(s) into photos</source>
        <translation>
            <numerusform>%Ln PDF in Fotos umwandeln</numerusform>
            <numerusform>%Ln PDFs in Fotos umwandeln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Turning %n PDF(s) into photos</source>
        <translation>
            <numerusform>%Ln PDF wird zu Fotos</numerusform>
            <numerusform>%Ln PDFs werden zu Fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n PDF(s) turned into photos</source>
        <translation>
            <numerusform>%Ln PDF in Fotos umgewandelt</numerusform>
            <numerusform>%Ln PDFs in Fotos umgewandelt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Rename %n file(s)</source>
        <translation>
            <numerusform>%Ln Datei umbenennen</numerusform>
            <numerusform>%Ln Dateien umbenennen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Renaming %n file(s)</source>
        <translation>
            <numerusform>%Ln Datei wird umbenannt</numerusform>
            <numerusform>%Ln Dateien werden umbenannt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) renamed</source>
        <translation>
            <numerusform>%Ln Datei umbenannt</numerusform>
            <numerusform>%Ln Dateien umbenannt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>Add files</source>
        <translation>Dateien hinzufügen</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Ordner wählen</translation>
    </message>
</context>
<context>
    <name>FileStrip</name>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
</context>
<context>
    <name>FileTable</name>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>%Ln ausgewählt</numerusform>
            <numerusform>%Ln ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>Drag into the order you want</source>
        <translation>Zum Ordnen ziehen</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%Ln Datei</numerusform>
            <numerusform>%Ln Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>As dropped</source>
        <translation>Wie abgelegt</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>Nach Name</translation>
    </message>
    <message>
        <source>By size</source>
        <translation>Nach Größe</translation>
    </message>
    <message>
        <source>By kind</source>
        <translation>Nach Art</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Aus der Liste nehmen</translation>
    </message>
    <message>
        <source>Remove the folder from the list</source>
        <translation>Ordner aus der Liste nehmen</translation>
    </message>
</context>
<context>
    <name>FilesInvitation</name>
    <message>
        <source>Drop files here</source>
        <translation>Zieh Dateien hierher</translation>
    </message>
    <message>
        <source>Add files…</source>
        <translation>Dateien wählen…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Ordner wählen…</translation>
    </message>
</context>
<context>
    <name>Header</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>HomeScreen</name>
    <message>
        <source>Popular</source>
        <translation>Beliebt</translation>
    </message>
    <message numerus="yes">
        <source>All %n tool(s)</source>
        <translation>
            <numerusform>Das %Ln Werkzeug</numerusform>
            <numerusform>Alle %Ln Werkzeuge</numerusform>
        </translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Zuletzt</translation>
    </message>
    <message>
        <source>All activity</source>
        <translation>Ganzer Verlauf</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>A job is still running</source>
        <translation>Ein Auftrag läuft noch</translation>
    </message>
    <message>
        <source>If you quit now, it stops and nothing is saved. If it has already started saving, Tamble finishes that first, then quits.</source>
        <translation>Wenn du jetzt beendest, bricht er ab und nichts wird gesichert. Hat das Sichern schon begonnen, führt Tamble es zu Ende und schließt sich dann.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Keep working</source>
        <translation>Weiterarbeiten</translation>
    </message>
    <message>
        <source>A job was interrupted</source>
        <translation>Ein Auftrag wurde unterbrochen</translation>
    </message>
    <message>
        <source>Put everything back</source>
        <translation>Alles zurückholen</translation>
    </message>
    <message>
        <source>All right</source>
        <translation>In Ordnung</translation>
    </message>
    <message>
        <source>Leave it as it is</source>
        <translation>So lassen</translation>
    </message>
    <message>
        <source>Show activity</source>
        <translation>Verlauf zeigen</translation>
    </message>
</context>
<context>
    <name>NamesEditor</name>
    <message>
        <source>Order</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>As dropped</source>
        <translation>Wie abgelegt</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>Nach Name</translation>
    </message>
    <message>
        <source>By size</source>
        <translation>Nach Größe</translation>
    </message>
    <message>
        <source>By kind</source>
        <translation>Nach Art</translation>
    </message>
    <message>
        <source>Old and new names</source>
        <translation>Alte und neue Namen</translation>
    </message>
    <message>
        <source>%1 becomes %2</source>
        <translation>%1 wird zu %2</translation>
    </message>
</context>
<context>
    <name>OneDocument</name>
    <message>
        <source>Which PDF would you like to sign?</source>
        <translation>Welche PDF möchtest du unterschreiben?</translation>
    </message>
    <message>
        <source>One is signed at a time. The others stay as they are.</source>
        <translation>Es wird immer nur eine unterschrieben. Die anderen bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Sign %1</source>
        <translation>%1 unterschreiben</translation>
    </message>
</context>
<context>
    <name>PageCell</name>
    <message>
        <source>Page %1</source>
        <translation>Seite %1</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>ausgelassen</translation>
    </message>
    <message>
        <source>%1 · left out</source>
        <translation>%1 · ausgelassen</translation>
    </message>
</context>
<context>
    <name>PageEditor</name>
    <message>
        <source>Smaller pages</source>
        <translation>Kleinere Seiten</translation>
    </message>
    <message>
        <source>Larger pages</source>
        <translation>Größere Seiten</translation>
    </message>
</context>
<context>
    <name>PageGrid</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%Ln Seite</numerusform>
            <numerusform>%Ln Seiten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PageTools</name>
    <message>
        <source>Turn left</source>
        <translation>Linksherum</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>Rechtsherum</translation>
    </message>
    <message>
        <source>Bring back</source>
        <translation>Zurückholen</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Auslassen</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Keine auswählen</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Start over</source>
        <translation>Von vorn</translation>
    </message>
    <message>
        <source>With the keyboard: Alt and the arrows move pages, R turns them, Delete leaves them out.</source>
        <translation>Mit der Tastatur: Alt und die Pfeile verschieben Seiten, R dreht sie, Entf lässt sie aus.</translation>
    </message>
    <message>
        <source>At least one page has to stay.</source>
        <translation>Mindestens eine Seite muss bleiben.</translation>
    </message>
</context>
<context>
    <name>PathSetting</name>
    <message>
        <source>Use the usual one</source>
        <translation>Das übliche nehmen</translation>
    </message>
</context>
<context>
    <name>QuickSearchPopup</name>
    <message>
        <source>What would you like to do?</source>
        <translation>Was möchtest du tun?</translation>
    </message>
    <message>
        <source>Enter ↵</source>
        <translation>Eingabe ↵</translation>
    </message>
    <message>
        <source>Not yet</source>
        <translation>Noch nicht</translation>
    </message>
    <message>
        <source>No tool does that. Try another word, like “shrink” or “rotate”.</source>
        <translation>Das kann kein Werkzeug. Versuch ein anderes Wort, etwa „verkleinern“ oder „drehen“.</translation>
    </message>
</context>
<context>
    <name>RemoveMark</name>
    <message>
        <source>Remove from the list</source>
        <translation>Aus der Liste nehmen</translation>
    </message>
</context>
<context>
    <name>SaveChoices</name>
    <message>
        <source>Rename the files</source>
        <translation>Dateien umbenennen</translation>
    </message>
    <message>
        <source>Make renamed copies</source>
        <translation>Umbenannte Kopien</translation>
    </message>
    <message>
        <source>Next to each original</source>
        <translation>Neben dem Original</translation>
    </message>
    <message>
        <source>In one folder</source>
        <translation>In einem Ordner</translation>
    </message>
    <message>
        <source>In place of originals</source>
        <translation>Statt der Originale</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>If the name is taken</source>
        <translation>Falls es den Namen schon gibt</translation>
    </message>
    <message>
        <source>Add a number</source>
        <translation>Nummer anhängen</translation>
    </message>
    <message>
        <source>Skip the file</source>
        <translation>Datei auslassen</translation>
    </message>
    <message>
        <source>Replace the old one</source>
        <translation>Alte ersetzen</translation>
    </message>
</context>
<context>
    <name>SaveDefaultsForm</name>
    <message>
        <source>Next to each original</source>
        <translation>Neben dem Original</translation>
    </message>
    <message>
        <source>In one folder</source>
        <translation>In einem Ordner</translation>
    </message>
    <message>
        <source>In place of originals</source>
        <translation>Statt der Originale</translation>
    </message>
    <message>
        <source>Use Downloads</source>
        <translation>Downloads nehmen</translation>
    </message>
    <message>
        <source>A folder for each day</source>
        <translation>Ein Ordner für jeden Tag</translation>
    </message>
    <message>
        <source>Keep the folders as they were</source>
        <translation>Ordner behalten, wie sie waren</translation>
    </message>
    <message>
        <source>If the name is taken</source>
        <translation>Falls es den Namen schon gibt</translation>
    </message>
    <message>
        <source>Add a number</source>
        <translation>Nummer anhängen</translation>
    </message>
    <message>
        <source>Skip the file</source>
        <translation>Datei auslassen</translation>
    </message>
    <message>
        <source>Replace, old one to the Bin</source>
        <translation>Ersetzen, alte in den Papierkorb</translation>
    </message>
</context>
<context>
    <name>SaveFooter</name>
    <message>
        <source>%1 · The originals go to the Bin.</source>
        <translation>%1 · Die Originale kommen in den Papierkorb.</translation>
    </message>
</context>
<context>
    <name>SettingsScreen</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Wie das System</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Where new files go</source>
        <translation>Wohin neue Dateien kommen</translation>
    </message>
    <message>
        <source>When whole folders were dropped</source>
        <translation>Bei ganzen Ordnern</translation>
    </message>
    <message>
        <source>When single files were dropped</source>
        <translation>Bei einzelnen Dateien</translation>
    </message>
    <message>
        <source>Single files → Downloads › Tamble › today&apos;s date</source>
        <translation>Einzelne Dateien → Downloads › Tamble › heutiges Datum</translation>
    </message>
    <message>
        <source>Remember what I choose for a job</source>
        <translation>Merken, was ich für einen Auftrag wähle</translation>
    </message>
    <message>
        <source>The next job then starts with it.</source>
        <translation>Der nächste Auftrag beginnt dann damit.</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Arbeit</translation>
    </message>
    <message>
        <source>How many files at once</source>
        <translation>Wie viele Dateien zugleich</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>How many files are worked on at the same time</source>
        <translation>So viele Dateien werden gleichzeitig bearbeitet</translation>
    </message>
    <message>
        <source>Tell me when a job is done</source>
        <translation>Bescheid geben, wenn ein Auftrag fertig ist</translation>
    </message>
    <message>
        <source>With a notification, if the window isn&apos;t in front.</source>
        <translation>Mit einer Benachrichtigung, falls das Fenster nicht vorn ist.</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Für Fortgeschrittene</translation>
    </message>
    <message>
        <source>Model for cutting out subjects</source>
        <translation>Modell zum Freistellen</translation>
    </message>
    <message>
        <source>The usual one</source>
        <translation>Das übliche</translation>
    </message>
    <message>
        <source>Takes effect at the next start.</source>
        <translation>Gilt ab dem nächsten Start.</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Find a tool</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Ctrl K</source>
        <translation>Strg K</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Smart</source>
        <translation>Schlau</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>SignatureEditor</name>
    <message>
        <source>Previous page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Seite %1</translation>
    </message>
</context>
<context>
    <name>SignaturePage</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Arrows move the signature, plus and minus size it, Delete removes it.</source>
        <translation>Pfeile verschieben die Unterschrift, Plus und Minus ändern ihre Größe, Entf nimmt sie weg.</translation>
    </message>
    <message>
        <source>Signature</source>
        <translation>Unterschrift</translation>
    </message>
    <message>
        <source>Remove the signature</source>
        <translation>Unterschrift wegnehmen</translation>
    </message>
</context>
<context>
    <name>SignatureTools</name>
    <message>
        <source>Black ink</source>
        <translation>Schwarze Tinte</translation>
    </message>
    <message>
        <source>Blue ink</source>
        <translation>Blaue Tinte</translation>
    </message>
    <message>
        <source>Reading the picture…</source>
        <translation>Bild wird gelesen…</translation>
    </message>
    <message>
        <source>Draw here</source>
        <translation>Hier zeichnen</translation>
    </message>
    <message>
        <source>Drawing area for your signature</source>
        <translation>Zeichenfläche für deine Unterschrift</translation>
    </message>
    <message>
        <source>Undo the last stroke</source>
        <translation>Letzten Strich zurücknehmen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Put it on the page</source>
        <translation>Auf die Seite setzen</translation>
    </message>
    <message>
        <source>From a picture…</source>
        <translation>Aus einem Bild…</translation>
    </message>
    <message>
        <source>Keep for next time</source>
        <translation>Für das nächste Mal behalten</translation>
    </message>
    <message>
        <source>Stays on this computer.</source>
        <translation>Bleibt auf diesem Computer.</translation>
    </message>
    <message>
        <source>Your signatures</source>
        <translation>Deine Unterschriften</translation>
    </message>
    <message>
        <source>Signature %1</source>
        <translation>Unterschrift %1</translation>
    </message>
    <message>
        <source>Puts it on the page. Delete forgets it.</source>
        <translation>Setzt sie auf die Seite. Entf vergisst sie.</translation>
    </message>
    <message>
        <source>Delete this signature</source>
        <translation>Diese Unterschrift löschen</translation>
    </message>
    <message>
        <source>Delete this signature?</source>
        <translation>Diese Unterschrift löschen?</translation>
    </message>
    <message>
        <source>It is gone for good. PDFs that are signed with it stay as they are.</source>
        <translation>Sie ist dann endgültig weg. PDFs, die damit unterschrieben sind, bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Delete it</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>Behalten</translation>
    </message>
</context>
<context>
    <name>TextBox</name>
    <message>
        <source>Hide the password</source>
        <translation>Passwort verbergen</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Passwort zeigen</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%Ln Datei</numerusform>
            <numerusform>%Ln Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%Ln Byte</numerusform>
            <numerusform>%Ln Byte</numerusform>
        </translation>
    </message>
    <message>
        <source>the same size</source>
        <translation>gleich groß</translation>
    </message>
    <message>
        <source>%1 % smaller</source>
        <translation>%1 % kleiner</translation>
    </message>
    <message>
        <source>%1 % larger</source>
        <translation>%1 % größer</translation>
    </message>
    <message>
        <source>A few seconds left</source>
        <translation>Noch ein paar Sekunden</translation>
    </message>
    <message numerus="yes">
        <source>About %n second(s) left</source>
        <translation>
            <numerusform>Noch etwa %Ln Sekunde</numerusform>
            <numerusform>Noch etwa %Ln Sekunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n minute(s) left</source>
        <translation>
            <numerusform>Noch etwa %Ln Minute</numerusform>
            <numerusform>Noch etwa %Ln Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n hour(s) left</source>
        <translation>
            <numerusform>Noch etwa %Ln Stunde</numerusform>
            <numerusform>Noch etwa %Ln Stunden</numerusform>
        </translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Gerade eben</translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s) ago</source>
        <translation>
            <numerusform>Vor %Ln Minute</numerusform>
            <numerusform>Vor %Ln Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s) ago</source>
        <translation>
            <numerusform>Vor %Ln Stunde</numerusform>
            <numerusform>Vor %Ln Stunden</numerusform>
        </translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>d MMMM</source>
        <translation>d. MMMM</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <translation>d. MMMM yyyy</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s)</source>
        <translation>
            <numerusform>%Ln Foto</numerusform>
            <numerusform>%Ln Fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n video(s)</source>
        <translation>
            <numerusform>%Ln Video</numerusform>
            <numerusform>%Ln Videos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sound file(s)</source>
        <translation>
            <numerusform>%Ln Tondatei</numerusform>
            <numerusform>%Ln Tondateien</numerusform>
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
            <numerusform>%Ln Dokument</numerusform>
            <numerusform>%Ln Dokumente</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n other file(s)</source>
        <translation>
            <numerusform>%Ln andere Datei</numerusform>
            <numerusform>%Ln andere Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Already in that format (%1).</source>
        <translation>Schon in diesem Format (%1).</translation>
    </message>
    <message numerus="yes">
        <source>%n item(s) couldn&apos;t be read.</source>
        <translation>
            <numerusform>%Ln Eintrag war nicht lesbar.</numerusform>
            <numerusform>%Ln Einträge waren nicht lesbar.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n other(s)</source>
        <translation>
            <numerusform>%1 und %Ln weitere</numerusform>
            <numerusform>%1 und %Ln weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no Bin for this disk, so the original was kept and the new file saved beside it.</source>
        <translation>Für dieses Laufwerk gibt es keinen Papierkorb. Darum blieb das Original, und die neue Datei liegt daneben.</translation>
    </message>
    <message>
        <source>There is no Bin for this disk, so the existing file was kept and the new file saved with a number.</source>
        <translation>Für dieses Laufwerk gibt es keinen Papierkorb. Darum blieb die vorhandene Datei, und die neue hat eine Nummer bekommen.</translation>
    </message>
    <message>
        <source>This PDF is digitally signed. The new file is a changed one, so the seal no longer holds for it.</source>
        <translation>Diese PDF ist digital signiert. Die neue Datei ist verändert, darum gilt das Siegel für sie nicht mehr.</translation>
    </message>
</context>
<context>
    <name>ToolCard</name>
    <message>
        <source>Not yet</source>
        <translation>Noch nicht</translation>
    </message>
</context>
<context>
    <name>ToolScreen</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
</context>
<context>
    <name>Undo</name>
    <message numerus="yes">
        <source>%n file(s) have their old names again.</source>
        <translation>
            <numerusform>%Ln Datei hat wieder ihren alten Namen.</numerusform>
            <numerusform>%Ln Dateien haben wieder ihre alten Namen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) couldn&apos;t get their old names back.</source>
        <translation>
            <numerusform>%Ln Datei konnte ihren alten Namen nicht zurückbekommen.</numerusform>
            <numerusform>%Ln Dateien konnten ihre alten Namen nicht zurückbekommen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new files removed,</source>
        <translation>
            <numerusform>%Ln neue Datei entfernt,</numerusform>
            <numerusform>%Ln neue Dateien entfernt,</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new files removed.</source>
        <translation>
            <numerusform>%Ln neue Datei entfernt.</numerusform>
            <numerusform>%Ln neue Dateien entfernt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files put back.</source>
        <translation>
            <numerusform>%Ln Datei zurückgeholt.</numerusform>
            <numerusform>%Ln Dateien zurückgeholt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items couldn&apos;t be put back (the Bin may have been emptied).</source>
        <translation>
            <numerusform>%Ln Datei ließ sich nicht zurückholen (vielleicht wurde der Papierkorb geleert).</numerusform>
            <numerusform>%Ln Dateien ließen sich nicht zurückholen (vielleicht wurde der Papierkorb geleert).</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n new files were changed after the job, so they were kept.</source>
        <translation>
            <numerusform>%Ln neue Datei wurde nach dem Auftrag verändert und darum behalten.</numerusform>
            <numerusform>%Ln neue Dateien wurden nach dem Auftrag verändert und darum behalten.</numerusform>
        </translation>
    </message>
    <message>
        <source>Renaming “%1” was interrupted. All files have their old names.</source>
        <translation>Das Umbenennen von „%1“ wurde unterbrochen. Alle Dateien haben ihre alten Namen.</translation>
    </message>
    <message numerus="yes">
        <source>Renaming “%1” was interrupted, and %n file(s) couldn&apos;t get their old names back. The next start tries it again.</source>
        <translation>
            <numerusform>Das Umbenennen von „%1“ wurde unterbrochen, und %Ln Datei konnte ihren alten Namen nicht zurückbekommen. Beim nächsten Start wird es wieder versucht.</numerusform>
            <numerusform>Das Umbenennen von „%1“ wurde unterbrochen, und %Ln Dateien konnten ihre alten Namen nicht zurückbekommen. Beim nächsten Start wird es wieder versucht.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Renaming “%1” was interrupted when %n file(s) had their new names.</source>
        <translation>
            <numerusform>Das Umbenennen von „%1“ wurde unterbrochen, als %Ln Datei ihren neuen Namen hatte.</numerusform>
            <numerusform>Das Umbenennen von „%1“ wurde unterbrochen, als %Ln Dateien ihre neuen Namen hatten.</numerusform>
        </translation>
    </message>
    <message>
        <source>A job over “%1” was interrupted while it saved.</source>
        <translation>Ein Auftrag zu „%1“ wurde beim Sichern unterbrochen.</translation>
    </message>
    <message numerus="yes">
        <source>%n new file(s) were saved.</source>
        <translation>
            <numerusform>%Ln neue Datei wurde gesichert.</numerusform>
            <numerusform>%Ln neue Dateien wurden gesichert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n original(s) are in the Bin.</source>
        <translation>
            <numerusform>%Ln Original liegt im Papierkorb.</numerusform>
            <numerusform>%Ln Originale liegen im Papierkorb.</numerusform>
        </translation>
    </message>
    <message>
        <source>You can put everything back.</source>
        <translation>Du kannst alles zurückholen.</translation>
    </message>
</context>
<context>
    <name>WorkScreen</name>
    <message>
        <source>Stopping…</source>
        <translation>Wird angehalten…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Saving can&apos;t be interrupted, so that nothing is left half done.</source>
        <translation>Das Sichern lässt sich nicht unterbrechen, damit nichts halb fertig liegen bleibt.</translation>
    </message>
    <message>
        <source>Nothing is saved before everything is ready.</source>
        <translation>Gesichert wird erst, wenn alles fertig ist.</translation>
    </message>
</context>
<context>
    <name>tamble::ActivityModel</name>
    <message>
        <source>This job was undone from Activity.</source>
        <translation>Im Verlauf rückgängig gemacht.</translation>
    </message>
    <message numerus="yes">
        <source>%n saved</source>
        <translation>
            <numerusform>%Ln gesichert</numerusform>
            <numerusform>%Ln gesichert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation>
            <numerusform>%Ln ausgelassen</numerusform>
            <numerusform>%Ln ausgelassen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%Ln nicht gelungen</numerusform>
            <numerusform>%Ln nicht gelungen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tamble::App</name>
    <message>
        <source>A job is running. Drop these once it is done.</source>
        <translation>Ein Auftrag läuft. Zieh sie herein, sobald er fertig ist.</translation>
    </message>
    <message>
        <source>There are no files to paste. Copy some in the file manager first.</source>
        <translation>Es gibt keine Dateien zum Einfügen. Kopiere zuerst welche in der Dateiverwaltung.</translation>
    </message>
    <message>
        <source>Stopped. Nothing was saved.</source>
        <translation>Angehalten. Nichts wurde gesichert.</translation>
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
        <translation>Wird ausprobiert…</translation>
    </message>
</context>
<context>
    <name>tamble::FileListModel</name>
    <message>
        <source>Single files</source>
        <translation>Einzelne Dateien</translation>
    </message>
</context>
<context>
    <name>tamble::Forecast</name>
    <message>
        <source>%1 → estimating…</source>
        <translation>%1 → wird geschätzt…</translation>
    </message>
    <message>
        <source>%1 → about %2</source>
        <translation>%1 → etwa %2</translation>
    </message>
</context>
<context>
    <name>tamble::InkModel</name>
    <message>
        <source>There is no writing to be seen in this picture.</source>
        <translation>In diesem Bild ist keine Schrift zu sehen.</translation>
    </message>
</context>
<context>
    <name>tamble::IntakeModel</name>
    <message>
        <source>That isn&apos;t a file on this computer.</source>
        <translation>Das ist keine Datei auf diesem Computer.</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message numerus="yes">
        <source>%n folder(s)</source>
        <translation>
            <numerusform>%Ln Ordner</numerusform>
            <numerusform>%Ln Ordnern</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n single file(s)</source>
        <translation>
            <numerusform>%Ln einzelner Datei</numerusform>
            <numerusform>%Ln einzelnen Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source> and </source>
        <translation> und </translation>
    </message>
    <message numerus="yes">
        <source>%n item(s)</source>
        <translation>
            <numerusform>%Ln Eintrag</numerusform>
            <numerusform>%Ln Einträge</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tamble::JobModel</name>
    <message>
        <source>Saving %1 of %2</source>
        <translation>Sichert %1 von %2</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Wird angehalten…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message numerus="yes">
        <source>%n done</source>
        <translation>
            <numerusform>%Ln fertig</numerusform>
            <numerusform>%Ln fertig</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation>
            <numerusform>%Ln ausgelassen</numerusform>
            <numerusform>%Ln ausgelassen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%Ln nicht gelungen</numerusform>
            <numerusform>%Ln nicht gelungen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tamble::NamesModel</name>
    <message numerus="yes">
        <source>%n name(s) will change</source>
        <translation>
            <numerusform>%Ln Name ändert sich</numerusform>
            <numerusform>%Ln Namen ändern sich</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n problem(s)</source>
        <translation>
            <numerusform>%Ln Problem</numerusform>
            <numerusform>%Ln Probleme</numerusform>
        </translation>
    </message>
    <message>
        <source>Add numbers to tell the files apart.</source>
        <translation>Nummern unterscheiden die Dateien.</translation>
    </message>
    <message numerus="yes">
        <source>%n name(s) can&apos;t be given yet.</source>
        <translation>
            <numerusform>%Ln Name geht noch nicht.</numerusform>
            <numerusform>%Ln Namen gehen noch nicht.</numerusform>
        </translation>
    </message>
    <message>
        <source>All names stay as they are so far.</source>
        <translation>Bisher bleiben alle Namen, wie sie sind.</translation>
    </message>
</context>
<context>
    <name>tamble::PagesModel</name>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%Ln Seite</numerusform>
            <numerusform>%Ln Seiten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left out</source>
        <translation>
            <numerusform>%Ln ausgelassen</numerusform>
            <numerusform>%Ln ausgelassen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>%Ln ausgewählt</numerusform>
            <numerusform>%Ln ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n to be deleted</source>
        <translation>
            <numerusform>%Ln zum Löschen</numerusform>
            <numerusform>%Ln zum Löschen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n to be taken out</source>
        <translation>
            <numerusform>%Ln zum Herausnehmen</numerusform>
            <numerusform>%Ln zum Herausnehmen</numerusform>
        </translation>
    </message>
    <message>
        <source>Put the pages in order</source>
        <translation>Seiten in Reihenfolge bringen</translation>
    </message>
    <message>
        <source>Which pages should go?</source>
        <translation>Welche Seiten sollen weg?</translation>
    </message>
    <message>
        <source>Which pages do you want?</source>
        <translation>Welche Seiten möchtest du?</translation>
    </message>
    <message>
        <source>Drag pages to where they belong. Select several to move, turn or leave them out together.</source>
        <translation>Zieh Seiten dorthin, wo sie hingehören. Wähle mehrere aus, um sie zusammen zu verschieben, zu drehen oder auszulassen.</translation>
    </message>
    <message>
        <source>Click the pages, or draw a frame around them. Hold Shift for all in between.</source>
        <translation>Klick die Seiten an oder zieh einen Rahmen um sie. Mit der Umschalttaste kommen alle dazwischen dazu.</translation>
    </message>
    <message>
        <source>Move, turn or leave out a page first.</source>
        <translation>Verschiebe oder dreh zuerst eine Seite, oder lass eine aus.</translation>
    </message>
    <message>
        <source>Pick at least one page first.</source>
        <translation>Wähle zuerst mindestens eine Seite.</translation>
    </message>
</context>
<context>
    <name>tamble::PreferencesModel</name>
    <message>
        <source>Couldn&apos;t remember that: the folder of the settings can&apos;t be written.</source>
        <translation>Das ließ sich nicht merken: In den Ordner der Einstellungen kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>tamble::ResultModel</name>
    <message numerus="yes">
        <source>%n saved</source>
        <translation>
            <numerusform>%Ln gesichert</numerusform>
            <numerusform>%Ln gesichert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped</source>
        <translation>
            <numerusform>%Ln ausgelassen</numerusform>
            <numerusform>%Ln ausgelassen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%Ln nicht gelungen</numerusform>
            <numerusform>%Ln nicht gelungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped: %1</source>
        <translation>
            <numerusform>%Ln ausgelassen: %1</numerusform>
            <numerusform>%Ln ausgelassen: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Nothing was saved. Your files are as they were.</source>
        <translation>Nichts wurde gesichert. Deine Dateien sind, wie sie waren.</translation>
    </message>
    <message>
        <source>That didn&apos;t work</source>
        <translation>Das hat nicht geklappt</translation>
    </message>
    <message>
        <source>Nothing to do</source>
        <translation>Nichts zu tun</translation>
    </message>
    <message>
        <source>%1 → %2, %3</source>
        <translation>%1 → %2, %3</translation>
    </message>
    <message numerus="yes">
        <source>%n new file(s)</source>
        <translation>
            <numerusform>%Ln neue Datei</numerusform>
            <numerusform>%Ln neue Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n couldn&apos;t be done</source>
        <translation>
            <numerusform>%Ln nicht gelungen</numerusform>
            <numerusform>%Ln nicht gelungen</numerusform>
        </translation>
    </message>
    <message>
        <source>Single files</source>
        <translation>Einzelne Dateien</translation>
    </message>
</context>
<context>
    <name>tamble::SaveDefaults</name>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
</context>
<context>
    <name>tamble::SavedSignaturesModel</name>
    <message numerus="yes">
        <source>This signature isn&apos;t kept for next time: %n are kept already.</source>
        <translation>
            <numerusform>Diese Unterschrift wird nicht fürs nächste Mal behalten: %Ln ist schon da.</numerusform>
            <numerusform>Diese Unterschrift wird nicht fürs nächste Mal behalten: %Ln sind schon da.</numerusform>
        </translation>
    </message>
    <message>
        <source>This signature couldn&apos;t be kept for next time.</source>
        <translation>Diese Unterschrift ließ sich nicht fürs nächste Mal behalten.</translation>
    </message>
    <message>
        <source>This signature couldn&apos;t be deleted.</source>
        <translation>Diese Unterschrift ließ sich nicht löschen.</translation>
    </message>
</context>
<context>
    <name>tamble::SignatureModel</name>
    <message numerus="yes">
        <source>%n signature(s)</source>
        <translation>
            <numerusform>%Ln Unterschrift</numerusform>
            <numerusform>%Ln Unterschriften</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tamble::ToolModel</name>
    <message>
        <source>None of these files is of a kind that this tool works with.</source>
        <translation>Mit keiner dieser Dateien kann dieses Werkzeug arbeiten.</translation>
    </message>
</context>
</TS>
