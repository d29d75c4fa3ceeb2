// Copies of the page for tests that must be there before the page's own script.
import { createHash } from 'node:crypto';
import { readFileSync, writeFileSync } from 'node:fs';
import { pathToFileURL } from 'node:url';

import { folder } from './scratch.mjs';

export const kPage = new URL('../build/page/firststep.html', import.meta.url);

// The address of a copy in which a script runs first. The page's policy is made to allow it; all
// else is as it was.
export function copyWith(name, script) {
  const hash = createHash('sha256').update(script).digest('base64');
  const copy = readFileSync(kPage, 'utf8')
    .replace('script-src ', () => `script-src 'sha256-${hash}' `)
    .replace('<style>', () => `<script>${script}</script><style>`);
  const path = `${folder}/${name}.html`;
  writeFileSync(path, copy);
  return pathToFileURL(path).href;
}
