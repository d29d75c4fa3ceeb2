// WebKit: the small browser that comes with WebKitGTK, on a display of its own, through WebDriver.
import { spawn } from 'node:child_process';
import { once } from 'node:events';
import { mkdirSync, mkdtempSync, writeFileSync } from 'node:fs';
import { createServer } from 'node:net';
import { setTimeout as pause } from 'node:timers/promises';

import { Engine } from './engine.mjs';
import { folder } from './scratch.mjs';

// With these the buttons of its window leave it no wider than a phone.
const kNarrow = '* { min-width: 0; min-height: 0; padding: 0; margin: 0; border-width: 0 }';

// The driver tells nothing of what a page says, so the page is made to keep it.
const kListen = `(() => {
  const heard = (globalThis.heard = { console: [], errors: [] });
  for (const kind of ['debug', 'error', 'info', 'log', 'warn']) {
    console[kind] = (...words) => void heard.console.push(words.join(' '));
  }
  addEventListener('error', (event) => heard.errors.push(event.message));
  addEventListener('unhandledrejection', (event) => heard.errors.push(String(event.reason)));
  addEventListener('securitypolicyviolation', (event) => heard.errors.push(event.blockedURI));
})()`;

async function freePort() {
  const server = createServer().listen(0, '127.0.0.1');
  await once(server, 'listening');
  const { port } = server.address();
  server.close();
  return port;
}

export class WebKit extends Engine {
  // The ratio is whole and stays what it was at the start. A touch reaches the page as a mouse, and
  // a pen that leaves an element is lost to it.
  // Nothing can be emulated, nor is there an offline mode. Of the accessibility tree the driver
  // tells role and name, the rest is read from the page. What the page says while it loads is not
  // heard.
  static limits = { ratios: [1, 2, 3], changesRatio: false, touch: false, pen: true,
    partNotch: true, emulate: false };

  async start(ratio) {
    this.home = mkdtempSync(`${folder}/webkit-`);
    mkdirSync(`${this.home}/gtk-3.0`);
    writeFileSync(`${this.home}/gtk-3.0/gtk.css`, kNarrow);
    this.display = spawn('Xvfb', ['-displayfd', '3', '-screen', '0', '4000x3000x24'],
      { detached: true, stdio: ['ignore', 'ignore', 'ignore', 'pipe'] });
    process.on('exit', () => this.kill());
    const [number] = await once(this.display.stdio[3], 'data');

    const port = await freePort();
    const env = { ...process.env, DISPLAY: `:${String(number).trim()}`, GDK_BACKEND: 'x11',
      GDK_SCALE: String(ratio), XDG_CONFIG_HOME: this.home };
    this.server = spawn('WebKitWebDriver', [`--port=${port}`],
      { detached: true, env, stdio: 'ignore' });
    this.address = `http://127.0.0.1:${port}`;
    while (!(await fetch(`${this.address}/status`).catch(() => null))) await pause(20);
    const alwaysMatch = { unhandledPromptBehavior: 'ignore' };
    const { sessionId } = await this.send('POST', '/session', { capabilities: { alwaysMatch } });
    this.address += `/session/${sessionId}`;
    return this;
  }

  async send(method, path, body) {
    const reply = await fetch(this.address + path, { method, body: body && JSON.stringify(body) });
    const { value } = await reply.json();
    if (!value?.error) return value;
    const { error, message } = value;
    throw Object.assign(new Error(`${error}: ${message}`), { error });
  }

  // The browser is in the driver's group of processes. Once that has ended, the number of the group
  // may be another's.
  kill() {
    const { pid, exitCode, signalCode } = this.server ?? {};
    if (pid && exitCode === null && signalCode === null) process.kill(-pid, 'SIGKILL');
    this.display.kill();
  }

  async close() {
    await this.send('DELETE', '');
    this.kill();
  }

  async open(url) {
    this.dialogs = [];
    await this.send('POST', '/url', { url });
    await this.evaluate(kListen);
  }

  async seen() {
    const requests = "performance.getEntriesByType('resource').map((entry) => entry.name)";
    const heard = await this.evaluate(`{ ...heard, requests: ${requests} }`);
    return { ...heard, dialogs: this.dialogs };
  }

  async evaluate(expression) {
    await this.answerDialog();
    return this.send('POST', '/execute/sync', { script: `return (${expression})`, args: [] });
  }

  async inFrame(action) {
    await this.send('POST', '/frame', { id: 0 });
    await action();
    await this.send('POST', '/frame', { id: null });
  }

  async act(actions) {
    await this.answerDialog();
    await this.send('POST', '/actions', { actions });
    await this.answerDialog();
  }

  release() { return this.send('DELETE', '/actions'); }

  // The driver has to be asked whether a message box is open.
  async answerDialog() {
    const text = await this.send('GET', '/alert/text').catch((error) => {
      if (error.error !== 'no such alert') throw error;
      return null;
    });
    if (text === null) return;
    this.dialogs.push(text);
    await this.send('POST', '/alert/accept', {});
  }

  async resize(width, height) {
    await this.send('POST', '/window/rect', { width, height });
    const bar = height - (await this.evaluate('innerHeight'));
    await this.send('POST', '/window/rect', { width, height: height + bar });
  }

  async accessible(id) {
    const [element, found] = await this.evaluate(`((element) => {
      const of = (name) => element.getAttribute('aria-' + name);
      return [element, element.checkVisibility({ visibilityProperty: true }) && {
        description: document.getElementById(of('describedby'))?.textContent ?? element.title,
        value: of('valuetext') ?? element.value ?? '',
        checked: element.checked ?? of('checked') === 'true',
      }];
    })(document.getElementById('${id}'))`);
    const place = `/element/${Object.values(element)[0]}`;
    return found ? {
      role: await this.send('GET', `${place}/computedrole`),
      name: await this.send('GET', `${place}/computedlabel`),
      ...found,
    } : null;
  }
}
