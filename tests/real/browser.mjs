// Chromium without a screen, and what a user does in it.
import { pictures } from './processes.mjs';

let launched;

export async function closeBrowser() {
  await (await launched)?.close();
}

// A page of a browser that knows nothing yet. What it asks for outside the loopback address fails.
export async function openPage(colorScheme = 'light') {
  const { chromium } = await import('playwright-core');
  launched ??= chromium.launch({
    executablePath: '/usr/bin/chromium',
    args: ['--no-sandbox', '--disable-gpu', '--disable-background-networking', '--disable-component-update'],
  });
  const context = await (await launched).newContext({ colorScheme, viewport: { width: 800, height: 600 } });
  context.setDefaultTimeout(10000);
  return context.newPage();
}

export function picture(page, name) {
  return page.screenshot({ path: `${pictures}/${name}.png` });
}

// The provider's page for name and password, then the one for consent; ends where the provider redirects to.
export async function signIn(page, address, user, pictureName) {
  await page.goto(address);
  await page.fill('input[name=login]', user);
  await page.fill('input[name=password]', 'any password');
  if (pictureName) await picture(page, `${pictureName}-1-login`);
  await page.click('button[type=submit]');
  await page.waitForSelector('input[name=prompt][value=consent]', { state: 'attached' });
  if (pictureName) await picture(page, `${pictureName}-2-consent`);
  await page.click('button[type=submit]');
  await page.waitForURL(/\/done/);
}
