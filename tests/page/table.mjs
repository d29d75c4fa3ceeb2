// What the tests of all backends share: what each handler does (cases.txt), the pictures' hashes
// (pictures.txt) and the words (words.txt).
import { readFileSync } from 'node:fs';

const lines = (name) =>
  readFileSync(new URL(`../${name}`, import.meta.url), 'utf8').split('\n')
    .filter((line) => line !== '' && !line.startsWith('#'));

// 'Option1 hidden' is the property 'Option1 shown' with the value false.
const kKinds = { shown: ['shown', true], hidden: ['shown', false], checked: ['checked', true],
  unchecked: ['checked', false], selected: ['selected', true], unselected: ['selected', false] };
function property(line) {
  const [name, value] = line.trim().split(' ');
  const [kind, is] = kKinds[value] ?? [];
  return kind ? [`${name} ${kind}`, is] : [name, value];
}

export function readCases() {
  const opening = {};
  const handlers = [];
  let block = opening;
  for (const line of lines('cases.txt')) {
    if (line.startsWith('  ')) {
      const [name, value] = property(line);
      block[name] = value;
    } else if (line.startsWith('handler')) {
      const [, name, way, value, condition] =
        /^handler (\w+) (\w+)(?: to (\d+))?(?: when (.*))?$/.exec(line);
      const when = condition && property(condition);
      block = {};
      handlers.push({ name, way, value: Number(value), when, effect: block });
    }
  }
  return { opening, handlers };
}

// The hint of each control and menu item, which stands behind its name.
export const readHints = () => Object.fromEntries(lines('words.txt').map((line) => {
  const [, id, text] = /^(.*?): (.*)$/.exec(line);
  return [id, text];
}));

// The hash of each picture by its name and density, 'factors at 1.5'.
export function readPictures() {
  return Object.fromEntries(lines('pictures.txt').map((line) => {
    const [, hash, name] = /^(\S+) +(.*)$/.exec(line);
    return [name, hash];
  }));
}
