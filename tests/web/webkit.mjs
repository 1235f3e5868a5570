// WebKitGTK's browser by the WebDriver protocol, on a virtual screen and a session bus of its own.
import { spawn } from 'node:child_process';
import { once } from 'node:events';
import { existsSync, readdirSync } from 'node:fs';
import { createServer } from 'node:net';
import { setTimeout as wait } from 'node:timers/promises';

const keys = {
  Tab: '\uE004', Control: '\uE009', Escape: '\uE00C', PageUp: '\uE00E', PageDown: '\uE00F',
  End: '\uE010', Home: '\uE011', ArrowUp: '\uE013', ArrowDown: '\uE015',
};
// In the folder of the machine's kind.
const binary = readdirSync('/usr/lib').map((kind) => `/usr/lib/${kind}/webkit2gtk-4.1/MiniBrowser`)
  .find((path) => existsSync(path));
const capabilities = {
  unhandledPromptBehavior: 'ignore',
  'webkitgtk:browserOptions': {
    binary, args: ['--automation'],
  },
};

async function freePort() {
  const server = createServer().listen(0, '127.0.0.1');
  await once(server, 'listening');
  const { port } = server.address();
  server.close();
  return port;
}

export class WebKitPage {
  told = [];

  static async start() {
    const page = new WebKitPage();
    const driver = `http://127.0.0.1:${await freePort()}`;
    page.driver = spawn('dbus-run-session', ['--', 'xvfb-run', '--auto-servernum', 'WebKitWebDriver',
      `--port=${new URL(driver).port}`], { detached: true, stdio: 'ignore' });
    for (let tries = 200; !await fetch(driver + '/status').catch(() => tries-- <= 0); ) await wait(50);
    page.session = driver + '/session';
    const session = await page.command('POST', '', { capabilities: { alwaysMatch: capabilities } });
    page.session += '/' + session.sessionId;
    await page.command('POST', '/window/rect', { width: 800, height: 760 });
    return page;
  }
  /// A command of the protocol. One that a message of the page's stands in the way of is given again.
  async command(method, path, body) {
    for (;;) {
      const answer = await fetch(this.session + path, { method, body: body && JSON.stringify(body) });
      const { value } = await answer.json();
      if (answer.ok) return value;
      if (value.error !== 'unexpected alert open') throw new Error(`${path}: ${value.error} ${value.message}`);
      await this.read();
    }
  }
  /// Reads the message that the page shows, and closes it. Whether there was one.
  async read() {
    const text = await this.command('GET', '/alert/text').catch(() => null);
    if (text === null) return false;
    this.told.push(text);
    await this.command('POST', '/alert/accept', {});
    return true;
  }
  async hear() {
    while (await this.read());
    return this.told;
  }
  async open(url) {
    await this.command('POST', '/url', { url });
    await this.hear();
  }
  async reload() { await this.command('POST', '/refresh', {}); }
  run(f, ...args) {
    return this.command('POST', '/execute/sync', { script: `return (${f})(...arguments)`, args });
  }
  /// Hands that a message stops halfway go on when it is closed.
  async act(...actions) {
    let acting = true;
    const done = this.command('POST', '/actions', { actions }).finally(() => { acting = false; });
    while (acting) {
      await Promise.race([done, wait(200)]);
      await this.hear();
    }
    await done;
  }
  click(x, y, { ctrl = false } = {}) {
    const pause = { type: 'pause' };
    const held = ['keyDown', 'keyUp'].map((type) => ({ type, value: keys.Control }));
    return this.act(
      { type: 'key', id: 'keys', actions: ctrl ? [held[0], pause, pause, held[1]] : [] },
      { type: 'pointer', id: 'mouse', actions: [
        { type: 'pointerMove', x: Math.round(x), y: Math.round(y) },
        { type: 'pointerDown', button: 0 }, { type: 'pointerUp', button: 0 }] });
  }
  key(name) {
    const value = keys[name] ?? name;
    const actions = ['keyDown', 'keyUp'].map((type) => ({ type, value }));
    return this.act({ type: 'key', id: 'keys', actions });
  }
  async close() {
    await this.command('DELETE', '').catch(() => {});
    process.kill(-this.driver.pid);
  }
}
