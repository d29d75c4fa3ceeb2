// Where the page may come from, and that it asks nobody for anything, wherever it stands.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { createServer } from 'node:http';
import { once } from 'node:events';
import { after, before, test } from 'node:test';

import { copyWith, kPage } from '../../browsers/copy.mjs';
import { noise, Pointing } from '../../browsers/program.mjs';

const frame = (sandbox) => `<!doctype html><title>a lesson</title>
  <iframe sandbox="${sandbox}" src="/page" width="1000" height="700"></iframe>`;
const kAnswers = {
  '/page': readFileSync(kPage),
  '/frame': frame('allow-scripts'),
  '/scriptless': frame('allow-same-origin'),
};
const kKept = `(async () => [document.cookie, localStorage.length, sessionStorage.length,
  (await indexedDB.databases()).length])()`;

// What the page's own rules must stop: a picture, a script and an answer from elsewhere.
const kIntrude = `(async () => {
  const image = Object.assign(new Image(), { src: '/image' });
  const script = Object.assign(document.createElement('script'), { text: 'window.broken = 1' });
  document.body.append(image, script);
  const refused = await fetch('/data').then(() => false, () => true);
  return [refused, window.broken ?? 0];
})()`;

export function testPlaces(program, { emulate }) {
  const mouse = new Pointing(program, 'mouse');
  const asked = [];
  const server = createServer(({ url }, reply) => {
    asked.push(url);
    reply.setHeader('Content-Type', 'text/html').end(kAnswers[url] ?? '');
  });
  const at = (path) => `http://127.0.0.1:${server.address().port}${path}`;
  before(() => once(server.listen(0, '127.0.0.1'), 'listening'));
  after(() => server.close());

  test('from a file it keeps silent and asks for nothing, offline too', async () => {
    if (emulate) await program.engine.offline(true);
    await program.open();
    await mouse.click('DYNAMEISDIAFORES');
    assert.ok((await program.look()).pink > 0);
    assert.deepEqual(await noise(program.engine), []);
    if (emulate) await program.engine.offline(false);
  });

  test('from a server it asks for itself alone, keeps nothing and lets nothing in', async () => {
    await program.open(at('/page'));
    await mouse.click('GUESSFORCE');
    assert.ok((await program.look()).black > 0);
    assert.deepEqual(await program.evaluate(kKept), ['', 0, 0, 0]);
    assert.deepEqual(await program.evaluate(kIntrude), [true, 0]);
    assert.deepEqual(asked, ['/page']);
  });

  test('in a sandboxed frame it runs', async () => {
    await program.engine.open(at('/frame'));
    await program.engine.inFrame(async () => {
      await program.begun();
      assert.ok((await program.look()).pink > 0);
    });
  });

  test('without what it needs it says so', async () => {
    for (const missing of ['WebAssembly', 'DecompressionStream']) {
      await program.engine.open(copyWith(missing, `delete globalThis.${missing};`));
      await program.waitFor("document.body.innerText.includes('needs a browser')");
    }
    await program.engine.open(at('/scriptless'));
    await program.waitFor("frames[0].document.body.innerText.includes('JavaScript is switched')");
    await program.open();
    assert.doesNotMatch(await program.evaluate('document.body.textContent'), /needs a browser/);
  });
}
