#include <Tamble/Model/ToolKeywords.h>

#include <algorithm>
#include <array>

namespace tamble {
namespace {

struct Keywords {
    ToolKind kind;
    std::string_view words;
};

constexpr std::array<Keywords, 39> keywords{{
    {ImageTool::convert,
     "change format, file type, export, save as, heic to jpg, heif to jpg, webp to png, png to jpg, "
     "jpg to png, jpg to webp, raw to jpg, tiff to jpg, avif, bmp, tif, jxl, jp2, ico, icns, iphone "
     "photos"},
    {ImageTool::compress,
     "compress, shrink, reduce, reduce size, file size, optimise, optimize, lighter, too big, too "
     "large, email, attachment, save space, kb, mb, upload, web, website, quality, lower quality, "
     "squeeze, minify"},
    {ImageTool::resize,
     "scale, change size, dimensions, pixels, px, resolution, thumbnail, shrink, smaller, resize for "
     "email, email, instagram, website, wallpaper, avatar, profile, longest side, megapixels, small"},
    {ImageTool::rotate,
     "turn, mirror, flip, sideways, upside down, orientation, straighten, portrait, landscape, 90 "
     "degrees, 180, spin, wrong way round"},
    {ImageTool::removeMetadata,
     "gps, exif, metadata, meta data, privacy, private, geotag, coordinates, place, where, strip, "
     "anonymous, anonymise, hidden data, xmp, iptc, clean, delete location, date taken, camera "
     "details, map"},
    {ImageTool::removeBackground,
     "cut out, cutout, cut-out, transparent, transparency, erase background, delete background, "
     "isolate, subject, product, white background, sticker, clip art, logo, mask, passport, "
     "headshot, object, bg"},
    {VideoTool::compress,
     "compress, shrink, reduce, reduce size, file size, lighter, too big, too large, attachment, "
     "email, whatsapp, upload, bitrate, mb, optimise, optimize"},
    {VideoTool::trim, "cut, shorten, cut out, clip, snip, split, beginning, length, edit, remove part"},
    {VideoTool::resize,
     "scale, dimensions, pixels, resolution, hd, full hd, 4k, 2k, 480p, downscale, smaller, size"},
    {VideoTool::cropRotate,
     "crop, turn, flip, mirror, sideways, upside down, orientation, portrait, landscape, vertical, "
     "square, black bars, reframe, aspect ratio, zoom"},
    {VideoTool::speed,
     "speed up, slow down, slow motion, slow-mo, slowmo, timelapse, time lapse, fast forward, "
     "faster, slower, tempo, quicker, pitch"},
    {VideoTool::merge,
     "merge, combine, concatenate, append, stitch, glue, join videos, add together, one film, edit"},
    {VideoTool::mute,
     "mute, silence, silent, delete audio, no audio, without sound, strip audio, quiet, volume off"},
    {VideoTool::replaceAudio,
     "add music, background music, soundtrack, dub, dubbing, voiceover, narration, swap audio, new "
     "audio, song, change audio"},
    {VideoTool::subtitles,
     "captions, caption, srt, vtt, closed captions, cc, hardcode, text on video, translate, foreign, "
     "lyrics"},
    {VideoTool::convert,
     "change format, file type, export, save as, mov to mp4, mkv to mp4, avi to mp4, webm to mp4, "
     "wmv, h264, h265, hevc, codec, encode, transcode, iphone video"},
    {VideoTool::gif, "gif, animated gif, animation, loop, meme, sticker, video to gif, boomerang, reaction"},
    {VideoTool::extractAudio,
     "extract audio, video to mp3, mp4 to mp3, mp3, m4a, wav, rip, sound only, music from video, "
     "soundtrack, podcast"},
    {AudioTool::record,
     "recorder, microphone, dictate, dictation, memo, voice memo, speak, talk, mic, capture, note"},
    {AudioTool::trim,
     "cut, shorten, ringtone, snip, clip, split, beginning, length, remove part, edit, silence"},
    {AudioTool::cleanup,
     "noise, denoise, noise reduction, hiss, hum, normalise, normalize, loudness, louder, volume, "
     "enhance, improve, quiet, level, podcast, too quiet, echo"},
    {AudioTool::extract,
     "extract audio, video to mp3, mp4 to mp3, mov to mp3, rip, music from video, sound only, mp4, "
     "mov"},
    {AudioTool::convert,
     "change format, file type, wav to mp3, m4a to mp3, flac to mp3, mp3 to wav, ogg to mp3, aac, "
     "ogg, opus, aiff, wma, bitrate, encode, export, save as, ringtone"},
    {PDFTool::merge,
     "merge, join, concatenate, append, put together, glue, bind, one file, single file, add pages, "
     "insert pages, stitch, collate, bundle, together, unite"},
    {PDFTool::split,
     "separate, divide, cut, break up, break apart, single pages, each page, burst, several files, "
     "chapters, part"},
    {PDFTool::organize,
     "edit pages, order, sort, arrange, rearrange, move pages, swap pages, organise, organize, turn, "
     "sideways, upside down, orientation, landscape, portrait, flip, sequence"},
    {PDFTool::deletePages, "remove pages, erase, drop, discard, blank pages, empty pages, get rid, cut"},
    {PDFTool::extractPages,
     "extract, extract pages, select, pick, keep pages, copy pages, save pages, pull out, single "
     "page, some pages, export"},
    {PDFTool::compress,
     "compress, shrink, reduce, reduce size, file size, lighter, too big, too large, attachment, "
     "optimise, optimize, upload, save space, kb, mb, squeeze"},
    {PDFTool::sign,
     "signature, sign pdf, autograph, contract, agreement, initials, e-sign, esign, stamp, signing, "
     "paperwork"},
    {PDFTool::addPassword,
     "lock, protect, encrypt, encryption, secure, security, secret, confidential, private, privacy, "
     "safe, restrict"},
    {PDFTool::removePassword,
     "unlock, decrypt, unprotect, open, forgot, without password, unsecure, locked, protected, "
     "encrypted, restrictions, no password"},
    {PDFTool::fromImages,
     "photo to pdf, jpg to pdf, jpeg to pdf, png to pdf, heic to pdf, image to pdf, picture to pdf, "
     "scan, scans, scanned, receipts, album, make pdf, create pdf, convert, save as pdf, homework, "
     "documents, screenshots"},
    {PDFTool::toImages,
     "pdf to jpg, pdf to jpeg, pdf to png, pdf to image, pdf to picture, convert, export, "
     "screenshot, thumbnail, render, preview, rasterise, rasterize, slides"},
    {SmartTool::transcribe,
     "transcribe, transcript, transcription, dictation, captions, subtitles, srt, interview, "
     "meeting, lecture, voice to text, audio to text, video to text, mp3 to text, minutes, notes, "
     "write down, podcast"},
    {SmartTool::ocr,
     "ocr, read text, recognise, recognize, extract text, scan, scanned, searchable, screenshot, "
     "image to text, photo to text, picture to text, pdf to text, handwriting, receipt, digitise, "
     "digitize, jpg, png"},
    {SmartTool::summarize,
     "summary, summarize, shorten, shorter, tldr, key points, abstract, brief, digest, overview, "
     "article, docx, doc, odt, rtf, txt, word, document, essay, report, pdf, minutes"},
    {SmartTool::translate,
     "translation, translator, language, english, german, french, spanish, italian, portuguese, "
     "foreign, docx, doc, odt, rtf, txt, srt, vtt, word, pdf, letter"},
    {FileTool::rename,
     "batch rename, bulk rename, file names, filenames, number, numbering, sequence, prefix, suffix, "
     "replace text, find and replace, find, date in name, counter, upper case, lower case, "
     "extension, photos, pictures, label, title, sort"},
}};

constexpr std::array<std::u32string_view, 47> fillWords{
    U"a",    U"an",  U"and", U"as",   U"at",    U"can", U"do",   U"for", U"from",   U"how", U"i",    U"in",
    U"into", U"is",  U"it",  U"me",   U"my",    U"of",  U"on",   U"or",  U"please", U"the", U"this", U"to",
    U"want", U"was", U"be",  U"with", U"your",  U"das", U"den",  U"der", U"die",    U"ein", U"eine", U"einen",
    U"fur",  U"ich", U"im",  U"mein", U"meine", U"mit", U"nach", U"und", U"von",    U"zu",  U"zum"};

}  // namespace

std::string_view toolKeywords(const ToolKind& kind) {
    const auto found = std::ranges::find(keywords, kind, &Keywords::kind);
    return found == keywords.end() ? std::string_view() : found->words;
}

std::string_view categoryKeywords(ToolCategory category) {
    switch (category) {
        case ToolCategory::video:
            return "videos, film, movie, clip, footage, mp4, mov, mkv, avi, webm, recording";
        case ToolCategory::audio:
            return "audio, music, song, recording, voice, track, mp3, m4a, wav, flac";
        case ToolCategory::images:
            return "photo, image, picture, pic, jpg, jpeg, png, heic, webp, raw, tiff, screenshot, scan";
        case ToolCategory::pdf:
            return "document, page, paper, file";
        case ToolCategory::smart:
            return "text, words, ai";
        case ToolCategory::files:
            break;
    }
    return "file, folder, any";
}

bool isFillWord(std::u32string_view word) {
    return std::ranges::find(fillWords, word) != fillWords.end();
}

}  // namespace tamble
