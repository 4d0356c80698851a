// The work of the photo rows with sharp: node sharp.mjs webp|resize ITEMS-AT-ONCE OUTPUT-FOLDER PHOTO-FOLDER
import { readdir } from "node:fs/promises";
import path from "node:path";
import sharp from "sharp";

const [work, itemsAtOnce, output, photographs] = process.argv.slice(2);
sharp.concurrency(1);
sharp.cache(false);

const works = {
  webp: (name) => open(name).webp({ quality: 80 }).toFile(target(name, ".webp")),
  resize: (name) =>
    open(name)
      .resize({ width: 1920, height: 1920, fit: "inside", withoutEnlargement: true })
      .jpeg({ quality: 80 })
      .toFile(target(name, ".jpg")),
};

const open = (name) => sharp(path.join(photographs, name)).autoOrient().keepExif();
const target = (name, extension) => path.join(output, path.parse(name).name + extension);

const waiting = (await readdir(photographs)).sort();
const worker = async () => {
  for (let name = waiting.shift(); name; name = waiting.shift()) await works[work](name);
};
await Promise.all(Array.from({ length: Number(itemsAtOnce) }, worker));
