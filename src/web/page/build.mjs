// Puts page, style, scripts and the compiled program into one file that needs nothing else.
// node build.mjs PROGRAM.js PROGRAM.wasm VERSION PAGE.html
import { createHash } from 'node:crypto';
import { readFileSync, writeFileSync } from 'node:fs';
import { dirname, join, resolve } from 'node:path';
import { fileURLToPath } from 'node:url';
import { gzipSync } from 'node:zlib';
import { build } from 'esbuild';

const [programScript, programBinary, version, page] = process.argv.slice(2);
const here = dirname(fileURLToPath(import.meta.url));

/** A module whose contents the build knows. */
function embedded(name, contents) {
  return {
    name,
    setup(bundle) {
      const filter = new RegExp(`^${name}$`);
      bundle.onResolve({ filter }, () => ({ path: name, namespace: 'embedded' }));
      bundle.onLoad({ filter, namespace: 'embedded' }, () => ({ contents }));
    },
  };
}

async function bundled(entry, options) {
  const result = await build({
    entryPoints: [join(here, 'source', entry)],
    bundle: true,
    minify: true,
    charset: 'ascii',
    format: 'iife',
    target: ['chrome100', 'firefox100', 'safari16.4'],
    loader: { '.txt': 'text' },
    legalComments: 'inline',
    write: false,
    ...options,
  });
  return result.outputFiles[0].text;
}

const exported = (values) =>
  Object.entries(values)
    .map(([name, value]) => `export const ${name} = ${JSON.stringify(value)};`)
    .join('\n');

const worker = await bundled('worker.ts', {
  alias: { 'kaldo-program': resolve(programScript) },
  external: ['fs', 'path', 'crypto', 'perf_hooks'],
});
const program = gzipSync(readFileSync(programBinary), { level: 9 }).toString('base64');
const script = (
  await bundled('main.ts', {
    plugins: [embedded('kaldo-embedded', exported({ program, worker, version }))],
  })
).replaceAll('</script', '<\\/script');
const style = readFileSync(join(here, 'style.css'), 'utf8');

/** The page runs and shows what is in it, and asks nobody for anything. */
const hashOf = (text) => `'sha256-${createHash('sha256').update(text).digest('base64')}'`;
const policy = [
  "default-src 'none'",
  `script-src ${hashOf(script)} 'wasm-unsafe-eval'`,
  `style-src ${hashOf(style)}`,
  'worker-src blob:',
  "connect-src 'none'",
  "base-uri 'none'",
  "form-action 'none'",
].join('; ');

const html = readFileSync(join(here, 'index.html'), 'utf8')
  .replace('content="policy"', () => `content="${policy}"`)
  .replace(/<style>[^<]*<\/style>/, () => `<style>${style}</style>`)
  .replace(/<script>[^<]*<\/script>/, () => `<script>${script}</script>`);
writeFileSync(page, html);
console.log(`${page}: ${html.length} bytes, ${gzipSync(html, { level: 9 }).length} compressed`);
