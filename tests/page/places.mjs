// Where the page may come from, and that it asks nobody for anything, wherever it stands.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { createServer } from 'node:http';
import { once } from 'node:events';
import { test } from 'node:test';

import { copyWith, kPage } from './copy.mjs';
import { noise, Pointing } from './program.mjs';

const frame = (sandbox) => `<!doctype html><title>a lesson</title>
  <iframe sandbox="${sandbox}" src="/page" width="1000" height="700"></iframe>`;
const kAnswers = { '/page': readFileSync(kPage), '/frame': frame('allow-scripts'),
  '/dead': frame('allow-same-origin') };
const kKept = `(async () => [document.cookie, localStorage.length, sessionStorage.length,
  (await indexedDB.databases()).length])()`;

// A server that remembers what it was asked for.
async function serve() {
  const asked = [];
  const server = createServer(({ url }, reply) => {
    asked.push(url);
    reply.setHeader('Content-Type', 'text/html').end(kAnswers[url] ?? '');
  }).listen(0, '127.0.0.1');
  await once(server, 'listening');
  return { asked, server, address: `http://127.0.0.1:${server.address().port}` };
}

export function testPlaces(program, { emulate }) {
  const mouse = new Pointing(program, 'mouse');

  test('from a file it keeps silent and asks for nothing', async () => {
    await program.open();
    await mouse.click('DYNAMEISDIAFORES');
    await program.look();
    assert.deepEqual(await noise(program.engine), []);
  });

  test('from a server it asks for itself alone, keeps nothing and lets nothing in', async () => {
    const { asked, server, address } = await serve();
    await program.open(`${address}/page`);
    await mouse.click('DYNAMEISDIAFORES');
    assert.deepEqual(await program.evaluate(kKept), ['', 0, 0, 0]);
    assert.deepEqual(await program.evaluate(`(async () => {
      const image = Object.assign(new Image(), { src: '/image' });
      const script = Object.assign(document.createElement('script'), { text: 'window.broken = 1' });
      document.body.append(image, script);
      const refused = await fetch('/data').then(() => false, () => true);
      return [refused, window.broken ?? 0];
    })()`), [true, 0]);
    assert.deepEqual(asked, ['/page']);
    server.closeAllConnections();
    server.close();
    await mouse.click('GUESSFORCE');
    assert.ok((await program.look()).black > 0);
  });

  test('in a sandboxed frame it runs', async () => {
    const { server, address } = await serve();
    const { engine } = program;
    await engine.open(`${address}/frame`);
    await engine.inFrame(async () => {
      await program.waitFor("document.getElementById('Text1')?.value.startsWith('We examine')");
      assert.ok((await program.look()).pink > 0);
    });
    server.close();
  });

  test('without what it needs it says so', async () => {
    for (const missing of ['WebAssembly', 'DecompressionStream']) {
      await program.engine.open(copyWith(missing, `delete globalThis.${missing};`));
      await program.waitFor("document.body.innerText.includes('needs a browser')");
    }
    await program.open();
    assert.doesNotMatch(await program.evaluate('document.body.textContent'), /needs a browser/);
  });

  test('offline it runs', { skip: !emulate }, async () => {
    await program.engine.offline(true);
    await program.open();
    await mouse.click('DYNAMEISDIAFORES');
    assert.ok((await program.look()).pink > 0);
    await program.engine.offline(false);
  });
}
