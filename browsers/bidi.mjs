// Chromium and Firefox without a display, through WebDriver BiDi.
import puppeteer from 'puppeteer-core';

import { Engine } from './engine.mjs';
import './scratch.mjs'; // where they write

class Bidi extends Engine {
  async launch(options) {
    const fixed = { protocol: 'webDriverBiDi', headless: true };
    this.browser = await puppeteer.launch({ ...fixed, ...options });
    this.page = await this.browser.newPage();
    this.page.on('console', (message) => this.console.push(message.text()));
    this.page.on('pageerror', (error) => this.errors.push(error.message));
    this.page.on('request', (request) => this.requests.push(request.url()));
    this.page.on('dialog', (dialog) => {
      this.dialogs.push(dialog.message());
      return dialog.accept();
    });
    return this;
  }

  close() { return this.browser.close(); }

  open(url) {
    Object.assign(this, { console: [], errors: [], dialogs: [], requests: [] });
    return this.page.goto(url);
  }

  // What came of the page since it was opened, lists of texts.
  seen() {
    const { console, errors, dialogs, requests } = this;
    return { console, errors, dialogs, requests };
  }

  // Gives the value of an expression, or of the promise that it is. It must fit into JSON.
  evaluate(expression) { return (this.frame ?? this.page).evaluate(expression); }

  // What is evaluated meanwhile is so in the page's only frame.
  async inFrame(action) {
    [, this.frame] = this.page.frames();
    await action();
    this.frame = null;
  }

  // Sets the size of what is to be seen of the page in CSS pixels, and the device-pixel ratio.
  resize(width, height, ratio = 1) {
    return this.page.setViewport({ width, height, deviceScaleFactor: ratio });
  }

  // How the element looks on the screen.
  async screenshot(id) { return Buffer.from(await (await this.page.$(`#${id}`)).screenshot()); }

  // Cuts the page off from every network, or ends that.
  offline(yes) { return this.page.setOfflineMode(yes); }

  act(actions) {
    return this.send('input.performActions', { context: this.page.mainFrame()._id, actions });
  }

  // Lets go of everything that is held.
  release() { return this.send('input.releaseActions', { context: this.page.mainFrame()._id }); }

  async send(method, parameters) {
    return (await this.browser.connection.send(method, parameters)).result;
  }
}

export class Chromium extends Bidi {
  // Its driver turns a wheel by whole notches, however far it is told to.
  static limits = { ratios: [1, 1.25, 1.5, 2, 3], changesRatio: true, touch: true, pen: true,
    partNotch: false, emulate: true };

  // Root may not start it with its sandbox; the other flags keep it from the network.
  start() {
    return this.launch({ browser: 'chrome', executablePath: '/usr/bin/chromium', args: [
      '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run', '--disable-sync',
      '--disable-background-networking', '--disable-component-update'] });
  }

  // A page is told nothing when the driver changes the ratio alone, as it is when a window goes to
  // another screen, so the size is changed on the way.
  async resize(width, height, ratio) {
    await super.resize(width + 1, height, ratio);
    await super.resize(width, height, ratio);
  }

  // What a screen reader is told of the element; null when it is told nothing.
  async accessible(id) {
    const expression = `document.getElementById('${id}')`;
    const session = await this.page.createCDPSession();
    const { result } = await session.send('Runtime.evaluate', { expression });
    const { nodes: [node] } = await session.send('Accessibility.getPartialAXTree',
      { objectId: result.objectId, fetchRelatives: false });
    // The protocol leaves out the text that stands for a slider's number.
    const text = await this.evaluate(`${expression}.getAttribute('aria-valuetext')`);
    await session.detach();
    return node.ignored ? null : {
      role: node.role.value,
      name: node.name.value,
      description: node.description?.value ?? '',
      value: text ?? String(node.value?.value ?? ''),
      checked: node.properties.some((one) => one.name === 'checked' && one.value.value === 'true'),
    };
  }

  async memory() {
    const session = await this.page.createCDPSession();
    await session.send('HeapProfiler.collectGarbage');
    const { usedSize } = await session.send('Runtime.getHeapUsage');
    await session.detach();
    return { ...(await super.memory()), scripts: usedSize };
  }

  // Switches these on and all others off: dark, forcedColours, coarse (the main pointer).
  async emulate(...on) {
    const features = [
      { name: 'prefers-color-scheme', value: on.includes('dark') ? 'dark' : 'light' },
      { name: 'forced-colors', value: on.includes('forcedColours') ? 'active' : 'none' }];
    this.emulation ??= await this.page.createCDPSession();
    await this.emulation.send('Emulation.setEmulatedMedia', { features });
    const touch = { enabled: on.includes('coarse') };
    await this.emulation.send('Emulation.setTouchEmulationEnabled', touch);
  }
}

// --remote-allow-system-access lets us into the browser's own window, where the accessibility tree
// and the settings are.
export class Firefox extends Bidi {
  // Its driver has no pen. Of the requests it leaves out those for files.
  static limits = { ratios: [1, 1.25, 1.5, 2, 3], changesRatio: true, touch: true, pen: false,
    partNotch: true, emulate: true };

  start() {
    return this.launch({ browser: 'firefox', executablePath: '/usr/bin/firefox-esr',
      args: ['--remote-allow-system-access'] });
  }

  async inWindow(expression) {
    const { contexts } = await this.send('browsingContext.getTree', { 'moz:scope': 'chrome' });
    const target = { context: contexts[0].context };
    const { result, exceptionDetails } =
      await this.send('script.evaluate', { expression, target, awaitPromise: true });
    if (exceptionDetails) throw new Error(exceptionDetails.text);
    return JSON.parse(result.value);
  }

  // The tree grows when it is asked for first, and follows the page a moment later.
  accessible(id) {
    return this.inWindow(`(async () => {
      const service = Cc['@mozilla.org/accessibilityService;1']
        .getService(Ci.nsIAccessibilityService);
      const page = () => service.getAccessibleFor(gBrowser.selectedBrowser)?.firstChild;
      while (!page()?.childCount) await new Promise((resolve) => setTimeout(resolve, 10));
      const find = (node) => {
        let found = node?.id === '${id}' ? node : null;
        for (let child = node?.firstChild; child && !found; child = child.nextSibling) {
          found = find(child);
        }
        return found;
      };
      const node = find(page());
      const state = {};
      node?.getState(state, {});
      return JSON.stringify(node && {
        role: node.computedARIARole,
        name: node.name ?? '',
        description: node.description ?? '',
        value: node.value ?? '',
        checked: (state.value & Ci.nsIAccessibleStates.STATE_CHECKED) !== 0,
      });
    })()`);
  }

  emulate(...on) {
    const pointer = on.includes('coarse') ? 1 : 6; // 6 is a fine one that can hover
    return this.inWindow(`(() => {
      const set = Services.prefs.setIntPref;
      set('layout.css.prefers-color-scheme.content-override', ${on.includes('dark') ? 0 : 1});
      set('browser.display.document_color_use', ${on.includes('forcedColours') ? 2 : 0});
      set('ui.primaryPointerCapabilities', ${pointer});
      set('ui.allPointerCapabilities', ${pointer});
      return 'null';
    })()`);
  }
}
