// The browsers, each behind the same operations: open(url) shows a page and reload() loads it again,
// run(f, values...) runs a function in it, click(x, y) and key(name) are the user's hands. Each
// message of the page's is read and closed, and hear() has them all since told was last emptied.
import { mkdtemp, rm } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import puppeteer from 'puppeteer-core';
import { WebKitPage } from './webkit.mjs';

const chromium = {
  executablePath: '/usr/bin/chromium',
  args: ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
    '--disable-background-networking', '--disable-component-update', '--disable-sync'],
};
const firefox = { browser: 'firefox', executablePath: '/usr/bin/firefox-esr' };

/// A page of Chromium's or Firefox's, on a profile of its own.
class PuppetPage {
  told = [];

  static async start(options) {
    const page = new PuppetPage();
    page.profile = await mkdtemp(join(tmpdir(), 'pitchsieve-profile-'));
    page.browser = await puppeteer.launch({ headless: true, userDataDir: page.profile, ...options });
    // Firefox gives the focus to no page that it opened itself.
    const own = options.browser === 'firefox';
    page.puppet = own ? await page.browser.newPage() : (await page.browser.pages())[0];
    page.puppet.on('dialog', (dialog) => {
      page.told.push(dialog.message());
      return dialog.accept();
    });
    await page.puppet.setViewport({ width: 800, height: 700 });
    if (!own) page.protocol = await page.puppet.createCDPSession();
    return page;
  }
  async open(url) { await this.puppet.goto(url); }
  async reload() { await this.puppet.reload(); }
  async hear() { return this.told; }
  run(f, ...values) { return this.puppet.evaluate(f, ...values); }
  async click(x, y, { ctrl = false } = {}) {
    if (ctrl) await this.puppet.keyboard.down('Control');
    await this.puppet.mouse.click(x, y);
    if (ctrl) await this.puppet.keyboard.up('Control');
  }
  key(name) { return this.puppet.keyboard.press(name); }
  async close() {
    await this.browser.close();
    await rm(this.profile, { recursive: true, force: true, maxRetries: 5 });
  }
}

export const start = {
  Chromium: () => PuppetPage.start(chromium),
  Firefox: () => PuppetPage.start(firefox),
  WebKit: () => WebKitPage.start(),
};
