// A page in a real browser, opened from the disk as a user does it, and what a user does there.
import assert from 'node:assert/strict';
import { spawnSync } from 'node:child_process';
import {
  existsSync,
  mkdirSync,
  mkdtempSync,
  readdirSync,
  readFileSync,
  rmSync,
  writeFileSync,
} from 'node:fs';
import { createRequire } from 'node:module';
import { tmpdir } from 'node:os';
import { basename, dirname, join } from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';

const installed = createRequire(new URL('../../src/web/page/package.json', import.meta.url));
const puppeteer = installed('puppeteer-core');
const { unzipSync } = installed('fflate');
export const axeSource = readFileSync(installed.resolve('axe-core/axe.min.js'), 'utf8');

export const root = dirname(dirname(dirname(fileURLToPath(import.meta.url))));
export const kaldo = process.env.KALDO ?? join(root, 'build/release/src/cli/kaldo');
const html = process.env.KALDO_PAGE ?? join(root, 'build/web/src/web/kaldo.html');

const browsers = {
  chrome: ['/usr/bin/chromium', '/usr/bin/google-chrome'],
  firefox: ['/usr/bin/firefox-esr', '/usr/bin/firefox'],
};

/** Tells whether the browser is on this machine. */
export const hasBrowser = (name) => browsers[name].some(existsSync);

export function launch(browser = 'chrome') {
  return puppeteer.launch({
    browser,
    executablePath: browsers[browser].find(existsSync),
    args: browser === 'chrome' ? ['--no-sandbox', '--disable-dev-shm-usage'] : [],
    protocolTimeout: 600000,
  });
}

const scratch = mkdtempSync(join(tmpdir(), 'kaldo-page-'));
process.on('exit', () => rmSync(scratch, { recursive: true, force: true }));

/** An empty folder that is gone with the tests. */
export const newFolder = () => mkdtempSync(join(scratch, 'folder-'));

/** The page of a browser. It fails where the page reports a fault or asks for anything. */
export class Page {
  static async open(browser) {
    const page = await browser.newPage();
    const faults = [];
    page.on('pageerror', (error) => faults.push(String(error)));
    page.on('console', (message) => {
      if (message.type() === 'error') {
        faults.push(message.text());
      }
    });
    page.on('request', (request) => {
      if (!/^(file|blob|data):/.test(request.url())) {
        faults.push(`asks for ${request.url()}`);
      }
    });
    await page.setViewport({ width: 1280, height: 900 });
    await page.goto(pathToFileURL(html).href);
    await page.waitForSelector('#file-fields select');
    return new Page(page, faults);
  }

  constructor(page, faults) {
    this.page = page;
    this.faults = faults;
  }

  async close() {
    assert.deepEqual(this.faults, []);
    await this.page.close({ runBeforeUnload: false });
  }

  click = (selector) => this.page.$eval(selector, (element) => element.click());
  text = (selector) => this.page.$eval(selector, (element) => element.textContent);
  texts = (selector) => this.page.$$eval(selector, (all) => all.map((each) => each.textContent));
  shows = (selector) => this.page.waitForSelector(selector, { visible: true, timeout: 300000 });

  async openExample(id) {
    await this.page.$eval('#examples', (list) => (list.closest('details').open = true));
    await this.click(`#example-${id}`);
    await this.shows('#checked .sound');
  }

  async give(...paths) {
    await (await this.page.$('#picker')).uploadFile(...paths);
    for (const path of paths) {
      await this.page.waitForFunction(
        (sought) => document.querySelector('#files').textContent.includes(sought),
        {},
        basename(path),
      );
    }
  }

  /** Lets files of text fall onto the page. */
  drop(...paths) {
    const files = paths.map((path) => [basename(path), readFileSync(path, 'utf8')]);
    return this.page.evaluate((dropped) => {
      const dataTransfer = new DataTransfer();
      dropped.forEach(([name, text]) => dataTransfer.items.add(new File([text], name)));
      const options = { dataTransfer, bubbles: true, cancelable: true };
      document.querySelector('#drop').dispatchEvent(new DragEvent('drop', options));
    }, files);
  }

  /** Types into a field as a user does, and leaves it. */
  type = (name, text) =>
    this.page.$eval(
      `[name="${name}"]`,
      (element, value) => {
        element.value = value;
        element.dispatchEvent(new Event('change'));
      },
      text,
    );

  /** Runs, until there are results or a refusal. */
  async run() {
    await this.page.$eval('#results-title', (element) => (element.textContent = ''));
    await this.click('#run');
    await this.page.waitForFunction(
      () =>
        document.querySelector('#run-told').textContent ||
        (document.querySelector('#progress').hidden &&
          document.querySelector('#panel-summary .headline') &&
          document.querySelector('#results-title').textContent),
      { timeout: 600000 },
    );
  }

  async openTab(name) {
    await this.click(`#tab-${name}`);
    await this.page.waitForSelector(`#panel-${name}[data-ready]`, { timeout: 300000 });
  }

  /** Takes what a click downloads, as bytes. */
  async downloaded(selector) {
    const folder = newFolder();
    const session = await this.page.createCDPSession();
    await session.send('Browser.setDownloadBehavior', {
      behavior: 'allow',
      downloadPath: folder,
      eventsEnabled: true,
    });
    const ended = new Promise((resolve) => {
      session.on('Browser.downloadProgress', ({ state }) => {
        if (state !== 'inProgress') {
          resolve(state);
        }
      });
    });
    await this.click(selector);
    assert.equal(await ended, 'completed');
    await session.detach();
    return readFileSync(join(folder, readdirSync(folder)[0]));
  }

  /** Unpacks all that the page gives into a new folder. */
  async unpacked() {
    await this.openTab('files');
    const folder = newFolder();
    for (const [name, bytes] of Object.entries(unzipSync(await this.downloaded('#zip')))) {
      const path = join(folder, name);
      mkdirSync(dirname(path), { recursive: true });
      writeFileSync(path, bytes);
    }
    return folder;
  }

  /** What the judge of accessibility finds, in words; by all of its rules unless told. */
  async findings(...rules) {
    // Between the contexts of page and test: the policy of the page lets nothing be injected.
    if (!(await this.page.evaluate(() => 'axe' in window))) {
      await this.page.evaluate(axeSource);
    }
    return this.page.evaluate(async (only) => {
      const { violations } = await axe.run(document, {
        resultTypes: ['violations'],
        ...(only.length > 0 ? { runOnly: only } : {}),
      });
      return violations.map(
        ({ id, nodes }) =>
          `${id}: ${nodes
            .map((node) => node.html)
            .slice(0, 3)
            .join(' ')}`,
      );
    }, rules);
  }

  /** How much wider than a window of that width the page is. */
  async overflow(width) {
    await this.page.setViewport({ width, height: 900 });
    return this.page.evaluate(() => document.documentElement.scrollWidth - window.innerWidth);
  }

  inColours = (scheme) =>
    this.page.emulateMediaFeatures([{ name: 'prefers-color-scheme', value: scheme }]);
}

/** Runs the command line in a folder. */
export function command(folder, ...words) {
  return spawnSync(kaldo, words, { cwd: folder, encoding: 'utf8' });
}

/** All files of a folder by their names; run records without what differs from run to run. */
export function filesIn(folder) {
  const files = {};
  for (const name of readdirSync(folder)) {
    const text = readFileSync(join(folder, name), 'latin1');
    files[name] = name === 'Run record.toml' ? timeless(text) : text;
  }
  return files;
}

function timeless(record) {
  return record
    .split('\n')
    .filter((line) => !/^(date|folder|threads|duration_seconds) = /.test(line))
    .join('\n');
}
